#ifndef CWIDGET_STYLE_XMLPIECE_P_H
#define CWIDGET_STYLE_XMLPIECE_P_H

#include <QHash>
#include <QString>

/// What was seen in one piece of a document: the body, or the text that an entity stands for. The
/// figures count the piece itself until the ledger has settled it; then they include what the
/// piece refers to.
struct XmlPiece {
    struct Use {
        Use() : count(0), depth(0), written(0)
        {
        }

        qint64 count;
        qint64 depth;   ///< the deepest level where the name is used
        qint64 written; ///< the characters of the references themselves
    };

    XmlPiece();

    void use(const QString& name, qint64 level, qint64 written);
    void add(const XmlPiece& other);

    qint64 size;   ///< characters
    qint64 depth;  ///< levels of elements
    qint64 starts; ///< what could be a start of an element, in whatever it stands
    bool whole;    ///< closes what it opens, and nothing else
    bool torn;     ///< ends within a tag, a comment or the like, or cannot be understood
    QHash<QString, Use> uses;
};

/// All pieces of a document by name, and the sums over what they refer to.
class XmlLedger
{
public:
    /// More than any limit, yet still a number after it was multiplied by a count of references.
    static const qint64 Endless = Q_INT64_C(1) << 31;

    XmlLedger();

    bool isEmpty() const;
    bool has(const QString& name) const;
    void add(const QString& name, const XmlPiece& piece);

    void settle();
    XmlPiece piece(const QString& name) const;
    qint64 largestSize() const;

private:
    enum State {
        Untouched,
        Open,
        Settled
    };

    struct Entry {
        Entry() : state(Untouched)
        {
        }

        XmlPiece piece;
        State state;
    };

    struct Step;

    void settle(Entry* first);
    void close(Entry* entry);

    QHash<QString, Entry> m_entries;
};

#endif
