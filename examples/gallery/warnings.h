#ifndef GALLERY_WARNINGS_H
#define GALLERY_WARNINGS_H

#include <QString>

/// Hands what Qt and the library warn of to \a receiver; null lets it be printed as before.
void receiveWarnings(void (*receiver)(const QString& text));

#endif
