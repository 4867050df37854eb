#include "SearchField.h"

#include "TintedIcon.h"

#include <QAction>
#include <QIcon>

using namespace Qt::StringLiterals;

namespace {

constexpr int kIconSize = 16;

} // namespace

SearchField::SearchField(const QString &placeholder, QWidget *parent)
    : QLineEdit(parent)
    , m_glass(addAction(QIcon(), QLineEdit::LeadingPosition))
{
    setPlaceholderText(placeholder);
    setAccessibleName(placeholder);
    setClearButtonEnabled(true);
    setIconColor(palette().color(QPalette::PlaceholderText));
}

void SearchField::setIconColor(const QColor &color)
{
    const qreal ratio = devicePixelRatioF();
    m_glass->setIcon(tintedIcon(u":/icons/search.svg"_s, color, kIconSize, ratio));
    // Qt makes the clear button itself and lends it only under this name.
    if (auto *clear = findChild<QAction *>(u"_q_qlineeditclearaction"_s)) {
        clear->setIcon(tintedIcon(u":/icons/clear.svg"_s, color, kIconSize, ratio));
        clear->setText(tr("Clear"));
    }
}
