#pragma once

#include <QString>
#include <QStringList>

/// Language codes: from any spelling to a code that the program knows.
namespace language {

/// The source language of all texts, and what everything falls back to.
QString defaultCode();

/// The supported code for `code` ("en_GB" gives "en-GB", "zh-TW" gives
/// "zh-Hant"), or an empty text.
QString resolve(const QString &code);

/// Like resolve(), but the default language where that gives nothing.
QString normalise(const QString &code);

/// The first of the system's interface languages that is supported.
QString systemCode();

Qt::LayoutDirection layoutDirection(const QString &code);

/// English in any variant, which the texts are written in and so needs no
/// translation.
bool isSourceLanguage(const QString &code);

/// The program can show this language: English, or a translation is compiled in.
bool hasTranslation(const QString &code);

/// Path of the compiled-in translation for a normalised code.
QString translationResource(const QString &code);

/// Every supported code, in canonical case and sorted.
QStringList supportedCodes();

} // namespace language
