#pragma once

#include <QColor>
#include <QPushButton>

class QLabel;

/// One entry of the sidebar: an icon with a word below it, of which one is chosen at
/// a time. The style template colours it through its object name.
class VantuNavCard final : public QPushButton
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(VantuNavCard)

public:
    VantuNavCard(const QString &objectName, const QString &text, const QString &iconPath,
                 QWidget *parent = nullptr);

    /// The icon in these colours, by whether the card is the chosen one. The word's come
    /// from the style template, as does the room that the icon needs above it.
    void setColors(const QColor &normal, const QColor &selected);

private:
    void renderIcon();

    QString m_iconPath;
    QColor m_normal;
    QColor m_selected;
    QLabel *m_icon;
};
