#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QWidget>

class ElidedLabel;
class QListWidget;
class QListWidgetItem;
class SearchField;
struct ThemePalette;

/// A line of a PickerList. What is shown is shown plainly.
struct PickerEntry
{
    QString key;       ///< By which the owner knows it, such as a code.
    QString name;      ///< Shown, and searched.
    QString otherName; ///< Searched too; empty for none.
    QString detail;    ///< Quiet text at the end of the line; empty for none.
};

/// A list to choose from with a search field above it.
///
/// One entry is chosen by being the marked line; several are chosen by their check
/// boxes, which a click anywhere on the line or Space turns over. Down leads from the field
/// into the list, Up from its first line back. Return is left to the dialog around it,
/// save that in the field of a list for several it leads into the list: what was looked
/// for isn't ticked yet.
class PickerList final : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(PickerList)

public:
    enum class Choice { One, Several };

    /// `searchText` stands in the empty field. Field and list are named `namePrefix` with
    /// "Search" and "List" behind it.
    PickerList(Choice choice, const QString &searchText, const QString &namePrefix,
               QWidget *parent = nullptr);

    /// What the list says of itself to assistive technology.
    void setListName(const QString &name);
    /// Fills the list anew and brings the first of the chosen entries into view. Keys that
    /// no entry has are left out.
    void setEntries(const QList<PickerEntry> &entries, const QStringList &chosen);

    /// Keys in the order of the list, also of entries that the search hides.
    QStringList chosen() const;
    /// Empties the search field; false if it was empty.
    bool clearSearch();
    /// Unticks every entry; for several only.
    void clearChosen();

    void applyThemePalette(const ThemePalette &palette);

    /// Whether the query, in any case and with blanks around it, stands at the start of
    /// a word of the name. An empty one stands everywhere.
    static bool matches(const QString &name, const QString &query);

Q_SIGNALS:
    void chosenChanged();
    /// A line was double-clicked where one is to be chosen.
    void confirmed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void connectList();
    bool handleFieldKey(int key);
    bool handleListKey(int key);
    void search();
    void enterList();
    void suggest(QListWidgetItem *first, bool searching);
    QListWidgetItem *firstVisible() const;

    Choice m_choice;
    SearchField *m_field = nullptr;
    QListWidget *m_list = nullptr;
    ElidedLabel *m_nothing = nullptr;
    /// The one entry that the user chose, whatever the search suggests meanwhile.
    QListWidgetItem *m_chosenItem = nullptr;
    bool m_updating = false;
};
