#include "nearest.h"

#include <QVector>

namespace
{

// Half edits, so that a letter of the wrong case costs less than a wrong letter.
const int fullEdit = 2;
const int caseEdit = 1;
const int longestWord = 200;

int costOf(QChar a, QChar b)
{
    if (a == b)
        return 0;
    return a.toLower() == b.toLower() ? caseEdit : fullEdit;
}

/// The cheapest way from \a a to \a b, row by row of the usual table.
int distance(const QString& a, const QString& b)
{
    QVector<int> row(b.size() + 1);
    for (int j = 0; j <= b.size(); ++j)
        row[j] = j * fullEdit;
    for (int i = 1; i <= a.size(); ++i) {
        int diagonal = row.at(0);
        row[0] = i * fullEdit;
        for (int j = 1; j <= b.size(); ++j) {
            const int replaced = diagonal + costOf(a.at(i - 1), b.at(j - 1));
            diagonal = row.at(j);
            row[j] = qMin(replaced, qMin(row.at(j), row.at(j - 1)) + fullEdit);
        }
    }
    return row.at(b.size());
}

} // namespace

QString nearest(const QString& word, const QStringList& candidates)
{
    const QString start = word.left(longestWord);
    QString best;
    int least = 0;
    for (int i = 0; i < candidates.size(); ++i) {
        const int cost = distance(start, candidates.at(i));
        if (i == 0 || cost < least) {
            best = candidates.at(i);
            least = cost;
        }
    }
    return best;
}
