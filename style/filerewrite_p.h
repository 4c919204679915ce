#ifndef CWIDGET_STYLE_FILEREWRITE_P_H
#define CWIDGET_STYLE_FILEREWRITE_P_H

#include <QByteArray>
#include <QFile>

namespace filerewrite
{

/// Puts \a content in place of what the \a file holds, which is open for reading and writing, and
/// returns whether it is on the disk now. When not, the file holds \a oldContent, as far as can be.
///
/// Where a new file can take the place of the old one unnoticed, it does: whenever the power fails,
/// one of the two is there as a whole. A file with several names, another owner or extended
/// attributes, or in a folder where nothing can be made, is written in place.
bool rewrite(QFile* file, const QByteArray& content, const QByteArray& oldContent);

} // namespace filerewrite

#endif
