#include "VantuNavCard.h"

#include "TintedIcon.h"

#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int kIconSize = 24;
constexpr int kTopMargin = 12;

} // namespace

VantuNavCard::VantuNavCard(const QString &objectName, const QString &text, const QString &iconPath,
                           QWidget *parent)
    : QPushButton(text, parent)
    , m_iconPath(iconPath)
    , m_icon(new QLabel(this))
{
    setObjectName(objectName);
    setCheckable(true);
    setAutoExclusive(true);
    setAutoDefault(true); // Return presses it, like Space.
    setAccessibleName(text);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, kTopMargin, 0, 0);
    m_icon->setObjectName(u"vantuSidebarIcon"_s);
    m_icon->setAlignment(Qt::AlignCenter);
    m_icon->setFixedHeight(kIconSize);
    m_icon->setAttribute(Qt::WA_TransparentForMouseEvents);
    column->addWidget(m_icon);
    column->addStretch(1);
    connect(this, &QAbstractButton::toggled, this, &VantuNavCard::renderIcon);
}

void VantuNavCard::setColors(const QColor &normal, const QColor &selected)
{
    m_normal = normal;
    m_selected = selected;
    renderIcon();
}

void VantuNavCard::renderIcon()
{
    const QColor &color = isChecked() ? m_selected : m_normal;
    if (color.isValid()) {
        m_icon->setPixmap(tintedIcon(m_iconPath, color, kIconSize, devicePixelRatioF()));
    }
}
