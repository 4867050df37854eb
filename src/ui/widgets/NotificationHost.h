#pragma once

#include <QColor>
#include <QList>
#include <QPointer>
#include <QString>
#include <QWidget>

class ElidedLabel;
class QEvent;
class QKeyEvent;
class QLabel;
class QTimer;
class QToolButton;

/// The banner that shows one notice at a time over a window's content: centred near the
/// top, at most 520 pixels wide, above its siblings. It tells screen readers of each
/// notice, and its close button is in the tab order.
///
/// A child of the widget that it covers, whose resizes it follows; it lies in no layout.
class NotificationHost final : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(NotificationHost)

public:
    /// `below`, a descendant of `parent` such as a page's title, stays uncovered: the
    /// banner hangs from its lower edge. Without one it hangs from the parent's top.
    explicit NotificationHost(QWidget &parent, QWidget *below = nullptr);

    /// A widget that the banner must never lie on while both are visible, such as a
    /// page's main button; the banner gives way downwards.
    void keepClearOf(QWidget &widget);

    /// Shows a notice in place of the last one. `kind` is "success", "warning" or
    /// "error" in any case and with blanks around it; anything else means "info". It
    /// stays for `timeoutMs`, or until dismissed when that isn't positive. An empty
    /// message hides the banner.
    void showMessage(const QString &message, const QString &kind, int timeoutMs);

    /// The colour of the close button's cross; handOnTheme() sets it.
    void setCloseColor(const QColor &color);

    /// "success", "warning", "error" or "info"; empty before the first notice.
    const QString &kind() const { return m_kind; }

public Q_SLOTS:
    void dismiss();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void build();
    void follow(QWidget *widget);
    void place();

    QPointer<QWidget> m_below;
    QList<QPointer<QWidget>> m_keepClear;
    QString m_kind;
    QLabel *m_icon = nullptr;
    ElidedLabel *m_message = nullptr;
    QToolButton *m_close = nullptr;
    QTimer *m_hideTimer = nullptr;
};
