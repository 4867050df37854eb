#include "FactBlock.h"

#include "Announce.h"
#include "PlainText.h"
#include "SettingsTexts.h"
#include "StyleProperty.h"
#include "TextStyle.h"
#include "ThemePalette.h"
#include "TintedIcon.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QToolButton>
#include <QToolTip>

using namespace Qt::StringLiterals;

namespace {

constexpr int kButtonSize = 28;
constexpr int kIconSize = 16;
constexpr int kGap = 8;

QLabel *makeFactLabel(QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setWordWrap(true);
    label->setMinimumWidth(1); // An address of any length must not widen the page.
    // Addresses read from left to right everywhere, but begin where other texts do.
    keepToLeadingEdge(*label);
    label->setLayoutDirection(Qt::LeftToRight);
    return label;
}

} // namespace

FactBlock::FactBlock(const QString &objectName, QWidget *parent)
    : QWidget(parent)
    , m_column(new QVBoxLayout(this))
{
    setObjectName(objectName);
    m_column->setContentsMargins(0, 0, 0, 0);
    m_column->setSpacing(0);
    addLine(); // It has a place in the tab order from the start.
}

void FactBlock::addLine()
{
    Line line;
    line.row = new QWidget(this);
    line.label = makeFactLabel(line.row);
    line.button = new QToolButton(line.row);
    line.button->setFixedSize(kButtonSize, kButtonSize);
    line.button->setIconSize({kIconSize, kIconSize});
    line.button->setFocusPolicy(Qt::StrongFocus);
    line.button->setToolTip(SettingsTexts::tr("Copy"));
    renderIcon(*line.button);
    connect(line.button, &QToolButton::clicked, this,
            [this, index = m_lines.size()] { copy(index); });

    auto *layout = new QHBoxLayout(line.row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(kGap);
    layout->addWidget(line.label, 1);
    layout->addWidget(line.button, 0, Qt::AlignTop);
    line.row->setMinimumHeight(kButtonSize);
    m_column->addWidget(line.row);
    if (!m_lines.isEmpty()) {
        setTabOrder(m_lines.constLast().button, line.button);
    }
    m_lines.append(line);
}

void FactBlock::setFacts(const QList<Fact> &facts)
{
    if (m_facts == facts) {
        return; // A selection stays.
    }
    m_facts = facts;
    while (m_lines.size() < facts.size()) {
        addLine();
    }
    for (qsizetype index = 0; index < m_lines.size(); ++index) {
        const Line &line = m_lines.at(index);
        line.row->setVisible(index < facts.size());
        const Fact fact = facts.value(index);
        line.label->setText(fact.text);
        setTextStyle(*line.label, fact.copied.isEmpty() ? TextStyle::Body : TextStyle::Code);
        setStyleProperty(*line.label, "vantuRole",
                         fact.isError ? QVariant(u"error"_s) : QVariant());
        line.button->setVisible(!fact.copied.isEmpty());
        line.button->setAccessibleName(SettingsTexts::tr("Copy %1").arg(fact.text));
    }
    setAccessibleName(text());
}

QString FactBlock::text() const
{
    QStringList lines;
    for (const Fact &fact : m_facts) {
        lines += fact.text;
    }
    return lines.join(u'\n');
}

void FactBlock::copy(qsizetype index)
{
    QGuiApplication::clipboard()->setText(m_facts.at(index).copied);
    QToolButton *button = m_lines.at(index).button;
    QToolTip::showText(button->mapToGlobal(button->rect().bottomLeft()),
                       SettingsTexts::tr("Copied"), button);
    announce(*button, SettingsTexts::tr("Copied"));
}

void FactBlock::applyThemePalette(const ThemePalette &palette)
{
    m_iconColor = QColor(palette.textMuted);
    for (const Line &line : std::as_const(m_lines)) {
        renderIcon(*line.button);
    }
}

void FactBlock::renderIcon(QToolButton &button) const
{
    QIcon icon;
    for (const qreal ratio : {1.0, 2.0}) {
        icon.addPixmap(tintedIcon(u":/icons/copy.svg"_s, m_iconColor, kIconSize, ratio));
    }
    button.setIcon(icon);
}
