/// Draws the countries' flags in the sizes that the program shows:
/// draw_flags SOURCE-FOLDER TARGET-FOLDER CODE…
///
/// Run by the build. The sources are SOURCE-FOLDER/<code>.png, larger by whole factors
/// than what is made of them, so that each pixel is the mean of a square.

#include <QCoreApplication>
#include <QDir>
#include <QImage>
#include <QStringList>

#include <array>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

struct Target
{
    const char *pattern;
    QSize size;
};

const std::array<Target, 4> kTargets{{
    {"%1.png", {20, 15}},
    {"%1@2x.png", {40, 30}},
    {"large/%1.png", {32, 24}},
    {"large/%1@2x.png", {64, 48}},
}};

bool drawFlag(const QDir &source, const QDir &target, const QString &code)
{
    const QImage flag(source.filePath(code + u".png"_s));
    if (flag.isNull()) {
        std::fprintf(stderr, "Can't read the flag of %ls\n", qUtf16Printable(code));
        return false;
    }
    for (const Target &drawing : kTargets) {
        const QString path = target.filePath(QString::fromLatin1(drawing.pattern).arg(code));
        // Sources may have a palette, which can't hold mixed colours.
        const QImage scaled =
            flag.convertToFormat(QImage::Format_ARGB32)
                .scaled(drawing.size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        if (!scaled.save(path, "PNG", 0)) {
            std::fprintf(stderr, "Can't write %ls\n", qUtf16Printable(path));
            return false;
        }
    }
    return true;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 4) {
        std::fprintf(stderr, "Usage: draw_flags SOURCE-FOLDER TARGET-FOLDER CODE...\n");
        return 2;
    }
    const QDir target(arguments.at(2));
    if (!target.mkpath(u"large"_s)) {
        return 1;
    }
    for (const QString &code : arguments.mid(3)) {
        if (!drawFlag(QDir(arguments.at(1)), target, code)) {
            return 1;
        }
    }
    return 0;
}
