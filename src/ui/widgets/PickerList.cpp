#include "PickerList.h"

#include "Announce.h"
#include "ElidedLabel.h"
#include "PickerDelegate.h"
#include "PlainText.h"
#include "SearchField.h"
#include "StyleProperty.h"
#include "ThemePalette.h"
#include "ThemedScrollBar.h"

#include <QKeyEvent>
#include <QListWidget>
#include <QScopedValueRollback>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int kGap = 8;
constexpr int kMinimumListHeight = 160;
constexpr int kKeyRole = Qt::UserRole;
constexpr int kOtherNameRole = PickerDelegate::kDetailRole + 1;

bool accepts(const QListWidgetItem &item, const QString &query)
{
    const QString otherName = item.data(kOtherNameRole).toString();
    return PickerList::matches(item.text(), query) ||
           (!otherName.isEmpty() && PickerList::matches(otherName, query));
}

} // namespace

PickerList::PickerList(Choice choice, const QString &searchText, const QString &namePrefix,
                       QWidget *parent)
    : QWidget(parent)
    , m_choice(choice)
    , m_field(new SearchField(searchText, this))
    , m_list(new QListWidget(this))
    , m_nothing(new ElidedLabel(tr("No matches."), m_list->viewport()))
{
    m_field->setObjectName(namePrefix + "Search"_L1);
    m_field->installEventFilter(this);
    m_list->setObjectName(namePrefix + "List"_L1);
    m_list->setItemDelegate(new PickerDelegate(m_list));
    m_list->setVerticalScrollBar(new ThemedScrollBar(Qt::Vertical));
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_list->setUniformItemSizes(true);
    m_list->setMinimumHeight(kMinimumListHeight);
    m_list->setSelectionMode(choice == Choice::One ? QAbstractItemView::SingleSelection
                                                   : QAbstractItemView::NoSelection);
    m_list->installEventFilter(this);

    m_nothing->setAlignment(Qt::AlignCenter);
    setStyleProperty(*m_nothing, "vantuRole", u"muted"_s);
    m_nothing->hide();
    auto *onList = new QVBoxLayout(m_list->viewport());
    onList->addWidget(m_nothing);

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(kGap);
    column->addWidget(m_field);
    column->addWidget(m_list, 1);
    setFocusProxy(m_field);
    connectList();
}

void PickerList::connectList()
{
    connect(m_field, &QLineEdit::textChanged, this, &PickerList::search);
    if (m_choice == Choice::Several) {
        connect(m_list, &QListWidget::itemChanged, this, [this] {
            if (!m_updating) {
                Q_EMIT chosenChanged();
            }
        });
        return;
    }
    connect(m_list, &QListWidget::itemSelectionChanged, this, [this] {
        if (!m_updating) {
            m_chosenItem = m_list->selectedItems().value(0);
            Q_EMIT chosenChanged();
        }
    });
    connect(m_list, &QListWidget::itemDoubleClicked, this, &PickerList::confirmed);
}

void PickerList::setListName(const QString &name)
{
    m_list->setAccessibleName(name);
}

void PickerList::setEntries(const QList<PickerEntry> &entries, const QStringList &chosen)
{
    const QScopedValueRollback updating(m_updating, true);
    m_list->clear();
    m_chosenItem = nullptr;
    QListWidgetItem *first = nullptr;
    for (const PickerEntry &entry : entries) {
        const bool isChosen = chosen.contains(entry.key);
        auto *item = new QListWidgetItem(plaintext::singleLine(entry.name), m_list);
        item->setData(kKeyRole, entry.key);
        item->setData(kOtherNameRole, entry.otherName);
        if (!entry.detail.isEmpty()) {
            item->setData(PickerDelegate::kDetailRole, plaintext::singleLine(entry.detail));
            item->setData(Qt::AccessibleTextRole, plaintext::list({entry.name, entry.detail}));
        }
        if (m_choice == Choice::Several) {
            item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsUserCheckable);
            item->setCheckState(isChosen ? Qt::Checked : Qt::Unchecked);
        }
        if (isChosen && !first) {
            first = item;
        }
    }
    if (first) {
        m_list->setCurrentItem(first);
        m_list->scrollToItem(first, QAbstractItemView::PositionAtCenter);
        m_chosenItem = m_choice == Choice::One ? first : nullptr;
    }
}

QStringList PickerList::chosen() const
{
    QStringList keys;
    for (int row = 0; row < m_list->count(); ++row) {
        const QListWidgetItem *item = m_list->item(row);
        if (m_choice == Choice::One ? item->isSelected() : item->checkState() == Qt::Checked) {
            keys += item->data(kKeyRole).toString();
        }
    }
    return keys;
}

bool PickerList::clearSearch()
{
    const bool isSearching = !m_field->text().isEmpty();
    m_field->clear();
    return isSearching;
}

void PickerList::clearChosen()
{
    {
        const QScopedValueRollback updating(m_updating, true);
        for (int row = 0; row < m_list->count(); ++row) {
            m_list->item(row)->setCheckState(Qt::Unchecked);
        }
    }
    Q_EMIT chosenChanged();
}

void PickerList::applyThemePalette(const ThemePalette &palette)
{
    static_cast<PickerDelegate *>(m_list->itemDelegate())
        ->setDetailColor(QColor(palette.textMuted));
    m_list->viewport()->update();
}

bool PickerList::matches(const QString &name, const QString &query)
{
    // Words of the query may go on beyond a word of the name, as in "new z".
    const QString wanted = query.trimmed().toLower();
    const QString text = name.toLower();
    for (qsizetype at = text.indexOf(wanted); at >= 0; at = text.indexOf(wanted, at + 1)) {
        if (at == 0 || !text.at(at - 1).isLetterOrNumber()) {
            return true;
        }
    }
    return false;
}

// Searching

void PickerList::search()
{
    const QString query = m_field->text().trimmed();
    {
        const QScopedValueRollback updating(m_updating, true);
        for (int row = 0; row < m_list->count(); ++row) {
            QListWidgetItem *item = m_list->item(row);
            item->setHidden(!accepts(*item, query));
        }
        QListWidgetItem *first = firstVisible();
        setShownAloud(*m_nothing, !first);
        suggest(first, !query.isEmpty());
    }
    if (m_choice == Choice::One) {
        Q_EMIT chosenChanged();
    }
}

void PickerList::suggest(QListWidgetItem *first, bool searching)
{
    if (m_choice == Choice::Several) {
        const QListWidgetItem *current = m_list->currentItem();
        if (!current || current->isHidden()) {
            m_list->setCurrentItem(first);
        }
        m_list->scrollToItem(m_list->currentItem());
        return;
    }
    QListWidgetItem *item = m_chosenItem && !m_chosenItem->isHidden() ? m_chosenItem
                            : searching                               ? first
                                                                      : nullptr;
    m_list->setCurrentItem(item);
    if (item) {
        m_list->scrollToItem(item);
    } else {
        m_list->clearSelection();
    }
}

QListWidgetItem *PickerList::firstVisible() const
{
    for (int row = 0; row < m_list->count(); ++row) {
        if (!m_list->item(row)->isHidden()) {
            return m_list->item(row);
        }
    }
    return nullptr;
}

// Keyboard

bool PickerList::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (watched == m_field ? handleFieldKey(key) : handleListKey(key)) {
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

bool PickerList::handleFieldKey(int key)
{
    const bool enter = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (key != Qt::Key_Down && key != Qt::Key_PageDown && !(enter && m_choice == Choice::Several)) {
        return false;
    }
    enterList();
    return true;
}

bool PickerList::handleListKey(int key)
{
    const QListWidgetItem *current = m_list->currentItem();
    if (key != Qt::Key_Up || (current && current != firstVisible())) {
        return false;
    }
    m_field->setFocus(Qt::BacktabFocusReason);
    return true;
}

void PickerList::enterList()
{
    QListWidgetItem *first = firstVisible();
    if (!first) {
        return;
    }
    const QListWidgetItem *current = m_list->currentItem();
    if (!current || current->isHidden()) {
        m_list->setCurrentItem(first);
    }
    m_list->setFocus(Qt::TabFocusReason);
}
