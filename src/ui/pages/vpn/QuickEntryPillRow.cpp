#include "QuickEntryPillRow.h"

#include "FlowLayout.h"
#include "PlainText.h"

#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

constexpr QMargins kMargins{12, 4, 12, 8};
constexpr int kSpacing = 6;
/// Longest text of a pill, in UTF-16 units.
constexpr qsizetype kMaxPillLength = 40;

} // namespace

QuickEntryPillRow::QuickEntryPillRow(int limit, QWidget *parent)
    : QWidget(parent)
    , m_limit(limit)
{
    setObjectName(u"VantuVPNQuickEntryPillRow"_s);
    auto *flow = new FlowLayout(kSpacing, kSpacing, this);
    flow->setContentsMargins(kMargins);
}

void QuickEntryPillRow::setTexts(const QStringList &texts)
{
    if (texts != m_texts) {
        m_texts = texts;
        render();
    }
}

void QuickEntryPillRow::collapse()
{
    if (m_expanded) {
        m_expanded = false;
        render();
    }
}

QList<QAbstractButton *> QuickEntryPillRow::buttons() const
{
    QList<QAbstractButton *> shown;
    for (QPushButton *pill : m_pills) {
        if (pill->isVisibleTo(this)) {
            shown += pill;
        }
    }
    if (m_more && m_more->isVisibleTo(this)) {
        shown += m_more;
    }
    return shown;
}

void QuickEntryPillRow::expand()
{
    m_expanded = true;
    render();
    Q_EMIT expanded(m_pills.value(m_limit));
}

void QuickEntryPillRow::render()
{
    const qsizetype all = m_texts.size();
    const qsizetype shown = m_limit > 0 && !m_expanded ? qMin<qsizetype>(all, m_limit) : all;
    while (m_pills.size() < shown) {
        m_pills += addPill();
    }
    for (qsizetype i = 0; i < m_pills.size(); ++i) {
        QPushButton *pill = m_pills.at(i);
        if (i < shown) {
            const QString text = plaintext::singleLine(m_texts.at(i), kMaxPillLength);
            pill->setText(plaintext::isolated(plaintext::menuText(text)));
            pill->setAccessibleName(text);
        }
        pill->setVisible(i < shown);
    }
    if (shown < all && !m_more) {
        m_more = new QPushButton(this);
        m_more->setObjectName(u"VantuVPNQuickEntryPillMore"_s);
        connect(m_more, &QPushButton::clicked, this, &QuickEntryPillRow::expand);
        layout()->addWidget(m_more);
        Q_EMIT buttonAdded(m_more);
    }
    if (m_more) {
        m_more->setText(u"+%1"_s.arg(all - shown));
        m_more->setVisible(shown < all);
    }
    updateGeometry();
}

QPushButton *QuickEntryPillRow::addPill()
{
    auto *pill = new QPushButton(this);
    pill->setObjectName(u"VantuVPNQuickEntryPill"_s);
    const qsizetype index = m_pills.size();
    connect(pill, &QPushButton::clicked, this, [this, index] {
        if (index < m_texts.size()) {
            // A copy: what is picked may change the texts.
            const QString text = m_texts.at(index);
            Q_EMIT picked(text);
        }
    });
    layout()->addWidget(pill);
    Q_EMIT buttonAdded(pill);
    return pill;
}
