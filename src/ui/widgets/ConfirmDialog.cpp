#include "ConfirmDialog.h"

#include "PlainText.h"
#include "StyleProperty.h"
#include "TextStyle.h"
#include "Theme.h"
#include "TintedIcon.h"

#include <QColor>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShowEvent>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int kMinimumWidth = 420;
constexpr int kMaximumTextWidth = 480;
constexpr int kIconSize = 24;
constexpr int kSpacing = 8;
constexpr int kIconSpacing = 14;
constexpr int kButtonRowTop = 4;

QLabel *makeText(const QString &name, const QString &text, TextStyle style)
{
    auto *label = new QLabel(text);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setMaximumWidth(kMaximumTextWidth);
    setTextStyle(*label, style);
    keepToLeadingEdge(*label);
    return label;
}

/// Button texts are foreign now and then: an ampersand is one, not a mnemonic.
QString buttonText(QString text)
{
    return text.replace(u'&', u"&&"_s);
}

} // namespace

ConfirmDialog::ConfirmDialog(const ConfirmTexts &texts, Theme &theme, QWidget *parent)
    : QDialog(parent)
    , m_theme(theme)
{
    setObjectName(u"VantuConfirmDialog"_s);
    setWindowTitle(texts.title);
    setAccessibleName(texts.title);
    setAccessibleDescription(texts.message);
    setModal(true);
    setMinimumWidth(kMinimumWidth);

    m_icon = new QLabel(this);
    m_icon->setObjectName(u"VantuConfirmDialogIcon"_s);
    m_icon->setAccessibleName(tr("Warning"));

    auto *top = new QHBoxLayout;
    top->setSpacing(kIconSpacing);
    top->addWidget(m_icon, 0, Qt::AlignTop);
    top->addLayout(buildTexts(texts), 1);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(18, 18, 18, 16);
    layout->setSpacing(kSpacing);
    layout->addLayout(top, 1);
    layout->addLayout(buildButtons(texts));

    theme.attach(*this);
    connect(&theme, &Theme::changed, this, &ConfirmDialog::renderIcon);
    renderIcon();
}

QVBoxLayout *ConfirmDialog::buildTexts(const ConfirmTexts &texts)
{
    auto *column = new QVBoxLayout;
    column->setSpacing(kSpacing);
    column->addWidget(makeText(u"VantuConfirmDialogTitle"_s, texts.title, TextStyle::DialogTitle));
    column->addWidget(makeText(u"VantuConfirmDialogMessage"_s, texts.message, TextStyle::Body));
    if (!texts.detail.isEmpty()) {
        QLabel *detail = makeText(u"VantuConfirmDialogDetail"_s, texts.detail, TextStyle::Note);
        setStyleProperty(*detail, "vantuRole", u"muted"_s);
        column->addWidget(detail);
    }
    column->addStretch(1);
    return column;
}

QHBoxLayout *ConfirmDialog::buildButtons(const ConfirmTexts &texts)
{
    auto *row = new QHBoxLayout;
    row->setContentsMargins(0, kButtonRowTop, 0, 0);
    row->setSpacing(kSpacing);
    row->addStretch(1);

    QPushButton *accept = addButton(*row, texts.accept, AcceptAnswer);
    accept->setObjectName(u"VantuConfirmDialogAccept"_s);
    setStyleProperty(*accept, "vantuDestructive", texts.destructive ? u"true"_s : u"false"_s);
    if (!texts.alternate.text.isEmpty()) {
        addButton(*row, texts.alternate, AlternateAnswer)
            ->setObjectName(u"VantuConfirmDialogAlternate"_s);
    }
    QPushButton *reject = addButton(*row, texts.reject, RejectAnswer);
    reject->setObjectName(u"VantuConfirmDialogReject"_s);

    QPushButton *usual = texts.destructive ? reject : accept;
    usual->setDefault(true);
    usual->setFocus();
    return row;
}

QPushButton *ConfirmDialog::addButton(QHBoxLayout &row, const ConfirmButton &button, Answer answer)
{
    auto *widget = new QPushButton(buttonText(button.text), this);
    widget->setAccessibleName(button.description.isEmpty() ? button.text : button.description);
    if (!button.description.isEmpty()) {
        widget->setToolTip(plaintext::toolTip(button.description));
    }
    connect(widget, &QPushButton::clicked, this, [this, answer] { done(answer); });
    row.addWidget(widget);
    return widget;
}

void ConfirmDialog::renderIcon()
{
    m_icon->setPixmap(tintedIcon(u":/icons/warning.svg"_s, QColor(m_theme.palette().warning),
                                 kIconSize, devicePixelRatioF()));
}

void ConfirmDialog::showEvent(QShowEvent *event)
{
    if (!event->spontaneous()) {
        // The screen and the final fonts are known only now. A dialog doesn't ask for
        // the height that its wrapped texts need at the width it gets.
        renderIcon();
        resize(width(), layout()->heightForWidth(width()));
        // A question from the tray has no window of the program in front of it.
        activateWindow();
    }
    QDialog::showEvent(event);
}
