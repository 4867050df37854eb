#include "ModeOption.h"

#include "ElidedLabel.h"
#include "StyleProperty.h"
#include "TextStyle.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int kMinimumHeight = 52;
/// Past the round mark that the style template draws.
constexpr int kTextIndent = 44;
constexpr QMargins kTextMargins{0, 8, 0, 8};
constexpr int kTextEnd = 16;
constexpr int kNoteLines = 3;

ElidedLabel *makeLabel(const QString &text, TextStyle style)
{
    auto *label = new ElidedLabel(text);
    label->setAttribute(Qt::WA_TransparentForMouseEvents);
    setTextStyle(*label, style);
    return label;
}

} // namespace

ModeOption::ModeOption(const QString &name, const QString &description, QWidget *parent)
    : QRadioButton(name, parent)
{
    setAccessibleName(name);
    setAccessibleDescription(description);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);

    // Margins would stay on their sides in a right-to-left layout.
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(kTextMargins);
    row->setSpacing(0);
    row->addSpacing(kTextIndent);
    auto *column = new QVBoxLayout;
    column->setSpacing(0);
    row->addLayout(column, 1);
    row->addSpacing(kTextEnd);
    column->addStretch(1);
    column->addWidget(makeLabel(name, TextStyle::CardTitle));
    if (!description.isEmpty()) {
        ElidedLabel *note = makeLabel(description, TextStyle::Note);
        note->setMaximumLines(kNoteLines);
        note->setWordWrap(true); // So that the row is as high as the text needs.
        setStyleProperty(*note, "vantuRole", u"muted"_s);
        column->addWidget(note);
    }
    column->addStretch(1);
}

QSize ModeOption::sizeHint() const
{
    return layout()->totalSizeHint().expandedTo({0, kMinimumHeight});
}

QSize ModeOption::minimumSizeHint() const
{
    return {layout()->totalMinimumSize().width(), kMinimumHeight};
}

int ModeOption::heightForWidth(int width) const
{
    return std::max(layout()->totalHeightForWidth(width), kMinimumHeight);
}

bool ModeOption::hitButton(const QPoint &position) const
{
    return rect().contains(position);
}

void ModeOption::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Up:
        Q_EMIT stepRequested(-1);
        break;
    case Qt::Key_Down:
        Q_EMIT stepRequested(1);
        break;
    default:
        QRadioButton::keyPressEvent(event);
        break;
    }
}

void ModeOption::nextCheckState() {}

void ModeOption::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    option.text.clear(); // The labels show it.
    painter.drawControl(QStyle::CE_RadioButton, option);
}
