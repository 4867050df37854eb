#include "CatalogSearch.h"

#include <QRegularExpression>

#include <algorithm>
#include <numeric>

using namespace Qt::StringLiterals;

namespace {

bool isLowerOrDigit(QChar character)
{
    return (character >= u'a' && character <= u'z') || (character >= u'0' && character <= u'9');
}

/// What "\b" of a regular expression takes for part of a word.
bool isWordCharacter(QChar character)
{
    return isLowerOrDigit(character) || (character >= u'A' && character <= u'Z') ||
           character == u'_';
}

} // namespace

bool CatalogSearch::Term::isIn(QStringView haystack) const
{
    // The same as matching "\b" and the text, at a fraction of the cost: thousands of
    // rows are asked at every key press.
    for (qsizetype at = haystack.indexOf(text); at >= 0; at = haystack.indexOf(text, at + 1)) {
        if (!startsWord || at == 0 || !isWordCharacter(haystack.at(at - 1))) {
            return true;
        }
    }
    return false;
}

CatalogSearch::CatalogSearch(const QString &query)
{
    for (const QString &token : tokens(query)) {
        m_terms.append({token, std::all_of(token.begin(), token.end(), isLowerOrDigit)});
    }
}

bool CatalogSearch::accepts(QStringView haystack) const
{
    return std::all_of(m_terms.begin(), m_terms.end(),
                       [haystack](const Term &term) { return term.isIn(haystack); });
}

CatalogSearch::Missing CatalogSearch::allTerms() const
{
    Missing all(m_terms.size());
    std::iota(all.begin(), all.end(), 0);
    return all;
}

CatalogSearch::Missing CatalogSearch::stillMissing(const Missing &missing, QStringView text) const
{
    Missing rest;
    for (const qsizetype term : missing) {
        if (!m_terms.at(term).isIn(text)) {
            rest.append(term);
        }
    }
    return rest;
}

QStringList CatalogSearch::tokens(const QString &query)
{
    static const QRegularExpression separators{u"[\\s_-]+"_s};
    QStringList words;
    for (const QString &part : query.toLower().split(separators, Qt::SkipEmptyParts)) {
        const QString word = part.trimmed();
        if (!word.isEmpty()) {
            words.append(word);
        }
    }
    return words;
}

QString CatalogSearch::searchText(const QStringList &parts)
{
    QString text;
    for (const QString &part : parts) {
        const QString trimmed = part.trimmed();
        if (!trimmed.isEmpty()) {
            text += (text.isEmpty() ? u""_s : u" "_s) + trimmed;
        }
    }
    return text.toLower();
}
