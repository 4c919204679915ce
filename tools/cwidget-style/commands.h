#ifndef CWIDGET_STYLE_TOOL_COMMANDS_H
#define CWIDGET_STYLE_TOOL_COMMANDS_H

#include "stylechecker.h"

#include <QStringList>

/// What the program does. Each command prints its result and returns the exit status.
namespace commands
{

enum Status {
    Good = 0,
    Bad = 1,       ///< errors, or with --strict warnings; or a file was not rewritten
    Unreadable = 2 ///< a file cannot be read, or the command line is none
};

struct CheckOptions {
    StyleChecker::Fonts fonts;
    bool strict;
    bool json;
};

int check(const QStringList& files, const CheckOptions& options);
int show(const QString& file);
int font(const QString& file, const QString& family);
int preview(const QString& file, const QString& folder);

} // namespace commands

#endif
