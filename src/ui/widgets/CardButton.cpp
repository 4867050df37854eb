#include "CardButton.h"

#include "ChevronLabel.h"
#include "ElidedLabel.h"
#include "PlainText.h"
#include "StyleProperty.h"
#include "TextStyle.h"

#include <QHBoxLayout>
#include <QHelpEvent>
#include <QToolTip>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int kMargin = 16;
constexpr int kSpacing = 8;
constexpr int kValueLines = 2;

} // namespace

CardButton::CardButton(const QString &title, QWidget *parent)
    : QPushButton(parent)
    , m_title(new ElidedLabel(title))
    , m_value(new ElidedLabel)
    , m_chevron(new ChevronLabel)
{
    setAccessibleName(title);
    setAutoDefault(true); // Return presses it, like Space.
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);

    m_title->setObjectName(u"VantuCardTitle"_s);
    setTextStyle(*m_title, TextStyle::CardTitle);
    m_value->setMaximumLines(kValueLines);
    m_value->setAlignment(Qt::AlignLeading | Qt::AlignTop);
    setTextStyle(*m_value, TextStyle::Value);
    setStyleProperty(*m_value, "vantuCardValue", u"true"_s);
    setTextStyle(*m_chevron, TextStyle::DialogTitle);

    auto *top = new QHBoxLayout;
    top->setSpacing(kSpacing);
    top->addWidget(m_title, 1);
    top->addWidget(m_chevron);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    layout->setSpacing(kSpacing);
    layout->addLayout(top);
    layout->addWidget(m_value);
    layout->addStretch(1);
    for (QLabel *label : findChildren<QLabel *>()) {
        label->setAttribute(Qt::WA_TransparentForMouseEvents);
    }
}

void CardButton::setValue(const QString &value)
{
    m_value->setText(value);
}

QSize CardButton::sizeHint() const
{
    return layout()->totalSizeHint();
}

QSize CardButton::minimumSizeHint() const
{
    return layout()->totalMinimumSize();
}

bool CardButton::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty() && m_value->isElided()) {
        const auto *help = static_cast<QHelpEvent *>(event);
        QToolTip::showText(help->globalPos(), plaintext::toolTip(m_value->text()), this);
        return true;
    }
    const bool done = QPushButton::event(event);
    switch (event->type()) {
    case QEvent::Polish:
    case QEvent::StyleChange:
    case QEvent::FontChange:
    case QEvent::LayoutRequest:
        // The least height that the style gives to buttons would be taken for a card's, and
        // a tight page would cut the value off.
        setMinimumHeight(minimumSizeHint().height());
        break;
    default:
        break;
    }
    return done;
}
