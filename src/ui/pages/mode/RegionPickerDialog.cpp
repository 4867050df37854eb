#include "RegionPickerDialog.h"

#include "DialogParts.h"
#include "ElidedLabel.h"
#include "PlainText.h"

#include <QCoreApplication>
#include <QHash>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

PickerTexts textsFor(const QString &route)
{
    const QString line = plaintext::singleLine(route);
    return {
        .namePrefix = u"VantuRegionPicker"_s,
        .title = QCoreApplication::translate("ModePage", "Regions use %1").arg(line),
        .subtitle =
            QCoreApplication::translate("ModePage", "Choose regions that should use %1.").arg(line),
        .search = QCoreApplication::translate("ModePage", "Search regions"),
        .cancel = QCoreApplication::translate("ModePage", "Cancel"),
        .apply = QCoreApplication::translate("ModePage", "Apply"),
        .unchanged = QCoreApplication::translate("ModePage", "Nothing has changed yet.")};
}

/// The lines of the list; a region that is chosen already goes by the spelling of its
/// choice, so that it isn't changed in passing.
QList<PickerEntry> entriesFor(const QList<RegionChoice> &regions, const QStringList &chosen)
{
    QHash<QString, QString> spelling;
    for (const QString &code : chosen) {
        spelling.insert(code.toUpper(), code);
    }
    QList<PickerEntry> entries;
    QStringList unknown = chosen;
    for (const RegionChoice &region : regions) {
        unknown.removeIf([&region](const QString &code) {
            return code.compare(region.code, Qt::CaseInsensitive) == 0;
        });
        entries.append({.key = spelling.value(region.code.toUpper(), region.code),
                        .name = region.name,
                        .otherName = {},
                        .detail = {}});
    }
    for (const QString &code : std::as_const(unknown)) {
        if (spelling.value(code.toUpper()) == code) {
            entries.append({.key = code, .name = code, .otherName = {}, .detail = {}});
        }
    }
    return entries;
}

} // namespace

RegionPickerDialog::RegionPickerDialog(const QString &route, const QList<RegionChoice> &regions,
                                       const QStringList &chosen, Theme &theme, QWidget *parent)
    : PickerDialog(PickerList::Choice::Several, textsFor(route), theme, parent)
    , m_count(
          dialogparts::makeText(u"VantuRegionPickerCount"_s, QString(), TextStyle::Note, 1, this))
    , m_clear(dialogparts::makeButton(u"VantuRegionPickerClearAll"_s,
                                      QCoreApplication::translate("ModePage", "Clear all"), this))
{
    addBelowList(m_count);
    addButton(m_clear);
    connect(m_clear, &QPushButton::clicked, &list(), &PickerList::clearChosen);
    connect(&list(), &PickerList::chosenChanged, this, &RegionPickerDialog::showCount);
    begin(entriesFor(regions, chosen), chosen);
}

QString RegionPickerDialog::countText(int count)
{
    if (count == 0) {
        return QCoreApplication::translate("ModePage", "No regions selected");
    }
    return plaintext::pluralText(
        QCoreApplication::translate("ModePage", "%n region(s) selected", nullptr, count), count);
}

void RegionPickerDialog::report(const QStringList &chosen)
{
    Q_EMIT applied(chosen);
}

void RegionPickerDialog::showCount()
{
    const auto count = static_cast<int>(list().chosen().size());
    m_count->setText(countText(count));
    if (count == 0 && focusWidget() == m_clear) {
        list().setFocus(); // Qt would hand the keyboard to Cancel.
    }
    m_clear->setEnabled(count > 0);
    m_clear->setToolTip(count > 0 ? QString() : countText(0));
}
