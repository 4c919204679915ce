#include "style/xmlpiece_p.h"

#include <QVector>

namespace
{

qint64 capped(qint64 number)
{
    return qMin(number, static_cast<qint64>(XmlLedger::Endless));
}

} // namespace

// ---- XmlPiece

XmlPiece::XmlPiece() : size(0), depth(0), starts(0), whole(true), torn(false)
{
}

/// Notes that the piece refers to \a name at level \a level, with \a written of its characters.
void XmlPiece::use(const QString& name, qint64 level, qint64 written)
{
    Use& use = uses[name];
    ++use.count;
    use.depth = qMax(use.depth, level);
    use.written += written;
}

/// Counts \a other as well: of two declarations of one name, each could be the one that holds.
void XmlPiece::add(const XmlPiece& other)
{
    size = capped(size + other.size);
    depth = qMax(depth, other.depth);
    starts = capped(starts + other.starts);
    whole = whole && other.whole;
    torn = torn || other.torn;
    QHash<QString, Use>::const_iterator it = other.uses.constBegin();
    for (; it != other.uses.constEnd(); ++it) {
        Use& use = uses[it.key()];
        use.count += it.value().count;
        use.depth = qMax(use.depth, it.value().depth);
        use.written += it.value().written;
    }
}

// ---- XmlLedger

/// An entry that is being settled, and the first of its references that is not looked at yet.
struct XmlLedger::Step {
    Entry* entry;
    QHash<QString, XmlPiece::Use>::const_iterator next;
};

XmlLedger::XmlLedger()
{
}

bool XmlLedger::isEmpty() const
{
    return m_entries.isEmpty();
}

bool XmlLedger::has(const QString& name) const
{
    return m_entries.contains(name);
}

void XmlLedger::add(const QString& name, const XmlPiece& piece)
{
    m_entries[name].piece.add(piece);
}

/// Adds to each piece what it refers to, directly or not. What refers to itself is endless.
void XmlLedger::settle()
{
    QHash<QString, Entry>::iterator it = m_entries.begin();
    for (; it != m_entries.end(); ++it) {
        if (it.value().state == Untouched)
            settle(&it.value());
    }
}

/// Settles what \a first refers to, then \a first. Chains of references can be long: they are
/// followed on a list, not on the stack.
void XmlLedger::settle(Entry* first)
{
    QVector<Step> path;
    for (Entry* entry = first; entry || !path.isEmpty();) {
        if (entry) {
            entry->state = Open;
            const Step step = {entry, entry->piece.uses.constBegin()};
            path.append(step);
            entry = nullptr;
        }
        Step& step = path.last();
        for (; !entry && step.next != step.entry->piece.uses.constEnd(); ++step.next) {
            const QHash<QString, Entry>::iterator used = m_entries.find(step.next.key());
            if (used != m_entries.end() && used.value().state == Untouched)
                entry = &used.value();
        }
        if (!entry) {
            close(step.entry);
            path.resize(path.size() - 1);
        }
    }
}

/// Sums up \a entry, all of whose references are settled but those that lead back to it.
void XmlLedger::close(Entry* entry)
{
    XmlPiece& piece = entry->piece;
    QHash<QString, XmlPiece::Use>::const_iterator it = piece.uses.constBegin();
    for (; it != piece.uses.constEnd(); ++it) {
        const QHash<QString, Entry>::const_iterator used = m_entries.constFind(it.key());
        if (used == m_entries.constEnd())
            continue;
        const XmlPiece& other = used.value().piece;
        const bool unbounded = used.value().state == Open || other.torn;
        const qint64 count = capped(it.value().count);
        piece.size += count * (unbounded ? Endless : capped(other.size)) - it.value().written;
        piece.size = capped(piece.size);
        piece.starts = capped(piece.starts + count * other.starts);
        piece.depth = qMax(piece.depth, capped(it.value().depth + other.depth));
        piece.whole = piece.whole && other.whole;
    }
    // Where ends may be missing or be surplus, nothing that is opened counts as closed.
    if (!piece.whole)
        piece.depth = piece.starts;
    entry->state = Settled;
}

/// What became of the piece called \a name.
XmlPiece XmlLedger::piece(const QString& name) const
{
    return m_entries.value(name).piece;
}

/// The size of the largest piece.
qint64 XmlLedger::largestSize() const
{
    qint64 largest = 0;
    QHash<QString, Entry>::const_iterator it = m_entries.constBegin();
    for (; it != m_entries.constEnd(); ++it)
        largest = qMax(largest, it.value().piece.size);
    return largest;
}
