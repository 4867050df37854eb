#pragma once

#include <QPushButton>

class ChevronLabel;
class ElidedLabel;

/// A card that is one button as a whole: a quiet title, below it a value of at most two
/// lines, and an arrow that says that it leads somewhere. The focus ring runs around
/// the card.
///
/// The owner gives it an accessible name that holds title and value, since the card
/// doesn't know the wording of that, and renames its labels where the style template
/// wants other names than "VantuCardTitle".
class CardButton final : public QPushButton
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CardButton)

public:
    explicit CardButton(const QString &title, QWidget *parent = nullptr);

    /// Shown plainly; what doesn't fit is in the tool tip, with the button's own tool
    /// tip taking precedence.
    void setValue(const QString &value);

    ElidedLabel *titleLabel() const { return m_title; }
    ElidedLabel *valueLabel() const { return m_value; }
    ChevronLabel *chevron() const { return m_chevron; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;

private:
    ElidedLabel *m_title = nullptr;
    ElidedLabel *m_value = nullptr;
    ChevronLabel *m_chevron = nullptr;
};
