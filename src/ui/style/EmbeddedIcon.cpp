#include "EmbeddedIcon.h"

#include <QIconEngine>
#include <QImageReader>
#include <QLoggingCategory>
#include <QPixmap>

namespace {

Q_LOGGING_CATEGORY(lcStyle, "vantu.ui")

QIcon decoded(const QString &pngPath)
{
    QImageReader reader(pngPath, "png");
    reader.setAutoDetectImageFormat(false);
    const QImage image = reader.read();
    if (image.isNull()) {
        qCWarning(lcStyle, "No icon %ls", qUtf16Printable(pngPath));
    }
    return QIcon(QPixmap::fromImage(image));
}

/// Hands everything on to the icon of the decoded picture.
class EmbeddedIconEngine final : public QIconEngine
{
public:
    explicit EmbeddedIconEngine(const QString &pngPath)
        : m_pngPath(pngPath)
    {}

    QIconEngine *clone() const override { return new EmbeddedIconEngine(*this); }

    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override
    {
        return icon().availableSizes(mode, state);
    }

    QSize actualSize(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        return icon().actualSize(size, mode, state);
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        return icon().pixmap(size, 1.0, mode, state);
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        icon().paint(painter, rect, Qt::AlignCenter, mode, state);
    }

private:
    const QIcon &icon()
    {
        if (m_icon.isNull()) {
            m_icon = decoded(m_pngPath);
        }
        return m_icon;
    }

    QString m_pngPath;
    QIcon m_icon;
};

} // namespace

QIcon embeddedIcon(const QString &pngPath)
{
    return QIcon(new EmbeddedIconEngine(pngPath));
}
