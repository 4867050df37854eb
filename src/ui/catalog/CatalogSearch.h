#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QVarLengthArray>

/// A search for places: the query as terms, and the rule by which a text has them.
///
/// A term of Latin letters and digits must start a word; any other term, such as one
/// in a script without spaces between words, may stand anywhere. A place is found when
/// each term is in its own text or in the text of something that it lies in.
class CatalogSearch final
{
public:
    /// Terms that were not found yet on the way down to a row, as indexes.
    using Missing = QVarLengthArray<qsizetype, 8>;

    /// Finds everything.
    CatalogSearch() = default;
    explicit CatalogSearch(const QString &query);

    /// Without terms everything is found.
    bool isEmpty() const { return m_terms.isEmpty(); }

    /// Whether `haystack`, a text made by searchText() or several of them joined by
    /// blanks, has every term.
    bool accepts(QStringView haystack) const;

    /// What is to be looked for at the top of a tree.
    Missing allTerms() const;

    /// Those of `missing` that `text` doesn't have either. Asking each level of a tree
    /// gives the same answer as accepts() with the texts of all levels joined, since no
    /// term holds a blank, without reading the upper texts again for each row.
    Missing stillMissing(const Missing &missing, QStringView text) const;

    /// The words of a query: lower case, divided at white space, "_" and "-".
    static QStringList tokens(const QString &query);

    /// What a row is found by: its names and identifiers, in lower case, with single
    /// blanks between them.
    static QString searchText(const QStringList &parts);

    bool operator==(const CatalogSearch &) const = default;

private:
    struct Term
    {
        QString text;
        bool startsWord = false;

        bool isIn(QStringView haystack) const;
        bool operator==(const Term &) const = default;
    };

    QList<Term> m_terms;
};
