#include "PickerDialog.h"

#include "DialogParts.h"
#include "ElidedLabel.h"
#include "HandOnTheme.h"
#include "PlainText.h"
#include "Theme.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int kMargin = 24;
constexpr int kGap = 8;
constexpr int kMinimumWidth = 420;
constexpr QSize kFirstSize{480, 560};
constexpr int kSubtitleLines = 3;

} // namespace

PickerDialog::PickerDialog(PickerList::Choice choice, const PickerTexts &texts, Theme &theme,
                           QWidget *parent)
    : QDialog(parent)
    , m_theme(theme)
    , m_list(new PickerList(choice, texts.search, texts.namePrefix, this))
    , m_foot(new QHBoxLayout)
    , m_unchanged(texts.unchanged)
    , m_mayBeEmpty(choice == PickerList::Choice::Several)
{
    setObjectName(texts.namePrefix + "Dialog"_L1);
    setWindowTitle(texts.title);
    setAccessibleName(texts.title);
    setAccessibleDescription(texts.subtitle);
    setModal(true);
    setMinimumWidth(kMinimumWidth);
    resize(kFirstSize);

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->setSpacing(kGap);
    column->addWidget(dialogparts::makeText(texts.namePrefix + "Title"_L1, texts.title,
                                            TextStyle::DialogTitle, 2, this));
    column->addWidget(dialogparts::makeText(texts.namePrefix + "Subtitle"_L1, texts.subtitle,
                                            TextStyle::Note, kSubtitleLines, this));
    column->addSpacing(kGap);
    column->addWidget(m_list, 1);
    column->addSpacing(kGap);
    column->addLayout(m_foot);
    buildButtons(texts);

    connect(m_list, &PickerList::chosenChanged, this, &PickerDialog::showWhetherChanged);
    connect(m_list, &PickerList::confirmed, this, &PickerDialog::apply);
    theme.attach(*this);
    connect(&theme, &Theme::changed, this, &PickerDialog::handOnPalette);
    handOnPalette();
    m_list->setListName(texts.title);
    m_list->setFocus();
}

void PickerDialog::buildButtons(const PickerTexts &texts)
{
    m_foot->setSpacing(kGap);
    m_foot->addStretch(1);
    m_cancel = dialogparts::makeButton(texts.namePrefix + "Cancel"_L1, texts.cancel, this);
    connect(m_cancel, &QPushButton::clicked, this, &QDialog::reject);
    m_foot->addWidget(m_cancel);
    m_apply = dialogparts::makeButton(texts.namePrefix + "Apply"_L1, texts.apply, this);
    m_apply->setDefault(true);
    connect(m_apply, &QPushButton::clicked, this, &PickerDialog::apply);
    m_foot->addWidget(m_apply);
}

void PickerDialog::begin(const QList<PickerEntry> &entries, const QStringList &chosen)
{
    m_list->setEntries(entries, chosen);
    m_first = m_list->chosen();
    Q_EMIT m_list->chosenChanged();
}

void PickerDialog::addBelowList(QWidget *widget)
{
    auto *column = static_cast<QVBoxLayout *>(layout());
    column->insertWidget(column->indexOf(m_list) + 1, widget);
}

void PickerDialog::addButton(QPushButton *button)
{
    m_foot->insertWidget(0, button);
    setTabOrder(button, m_cancel);
    setTabOrder(m_cancel, m_apply);
}

void PickerDialog::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Escape || !m_list->clearSearch()) {
        QDialog::keyPressEvent(event);
    }
}

void PickerDialog::apply()
{
    if (m_apply->isEnabled()) {
        // Closed first: what follows from the choice may have to ask a question.
        const QStringList chosen = m_list->chosen();
        accept();
        report(chosen);
    }
}

void PickerDialog::showWhetherChanged()
{
    const QStringList chosen = m_list->chosen();
    const bool changed = chosen != m_first && (m_mayBeEmpty || !chosen.isEmpty());
    m_apply->setEnabled(changed);
    m_apply->setToolTip(changed ? QString() : plaintext::toolTip(m_unchanged));
}

void PickerDialog::handOnPalette()
{
    handOnTheme(*this, m_theme.palette());
    m_list->applyThemePalette(m_theme.palette());
}
