#pragma once

#include <QObject>
#include <QString>
#include <QTranslator>

#include <memory>

/// Installs the interface's one translation. Lives for the whole process; a new
/// language is applied by restarting the program, because texts that already
/// stand on the screen would stay in the old one.
class TranslationManager final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(TranslationManager)

public:
    explicit TranslationManager(QObject *parent = nullptr);
    ~TranslationManager() override;

    /// Loads the translation for `code`. On failure nothing is installed, the
    /// current code is the default language, and false is returned.
    bool load(const QString &code);

    /// The language in effect.
    QString currentCode() const { return m_code; }

private:
    void removeTranslator();

    std::unique_ptr<QTranslator> m_translator;
    QString m_code;
};
