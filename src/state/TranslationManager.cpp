#include "TranslationManager.h"

#include "Language.h"

#include <QCoreApplication>

#include <utility>

TranslationManager::TranslationManager(QObject *parent)
    : QObject(parent)
    , m_code(language::defaultCode())
{}

TranslationManager::~TranslationManager()
{
    removeTranslator();
}

bool TranslationManager::load(const QString &code)
{
    if (QCoreApplication::instance() == nullptr) {
        return false;
    }
    removeTranslator();
    m_code = language::defaultCode();

    const QString wanted = language::normalise(code);
    if (!language::isSourceLanguage(wanted)) {
        // Asked first because the translator would quietly take a related file
        // ("fr" for "fr-CA") when the exact one is missing.
        if (!language::hasTranslation(wanted)) {
            return false;
        }
        auto translator = std::make_unique<QTranslator>();
        if (!translator->load(language::translationResource(wanted))) {
            return false;
        }
        m_translator = std::move(translator);
        QCoreApplication::installTranslator(m_translator.get());
    }
    m_code = wanted;
    return true;
}

void TranslationManager::removeTranslator()
{
    if (m_translator && QCoreApplication::instance() != nullptr) {
        QCoreApplication::removeTranslator(m_translator.get());
    }
    m_translator.reset();
}
