#ifndef GALLERY_SHOTS_H
#define GALLERY_SHOTS_H

class Panel;
class QString;

/// Draws every screen, every keypad and an open list into a picture in \a folder, which is made
/// when it is not there. Returns whether all could be written, and prints their names.
bool writeShots(Panel* panel, const QString& folder);

#endif
