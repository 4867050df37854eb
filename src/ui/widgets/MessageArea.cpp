#include "MessageArea.h"

#include "Announce.h"
#include "LabelText.h"
#include "StyleProperty.h"

#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

/// What the style template gives an error for its frame, above and below together.
constexpr int kFrameHeight = 18;

} // namespace

MessageArea::MessageArea(const QString &labelName, int lines, QWidget *parent)
    : QWidget(parent)
    , m_label(new QLabel(this))
{
    m_label->setObjectName(labelName);
    labeltext::wrap(*m_label);
    m_label->hide();
    setMinimumHeight(lines * m_label->fontMetrics().lineSpacing() + kFrameHeight);

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addStretch(1);
    column->addWidget(m_label);
}

void MessageArea::showMessage(const QString &text, Tone tone)
{
    setStyleProperty(*m_label, "vantuRole", tone == Tone::Error ? u"error"_s : u"muted"_s);
    m_label->setText(text);
    m_label->setVisible(!text.isEmpty());
}

void MessageArea::announce()
{
    if (!m_label->isHidden()) {
        ::announce(*m_label);
    }
}
