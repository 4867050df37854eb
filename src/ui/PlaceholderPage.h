#pragma once

#include <QWidget>

class ElidedLabel;

/// Stands in for a page that the client does not have yet: one quiet sentence, and
/// above it room for a message such as why the user was sent here.
class PlaceholderPage final : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(PlaceholderPage)

public:
    PlaceholderPage(const QString &objectName, const QString &sentence, QWidget *parent = nullptr);

    /// An empty message hides the line.
    void setMessage(const QString &message);

private:
    ElidedLabel *m_message;
};
