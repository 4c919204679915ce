#ifndef CWIDGET_STYLE_VERSION_H
#define CWIDGET_STYLE_VERSION_H

// The version of the library, by semantic versioning. The build reads it from here.
#define CWIDGET_VERSION_MAJOR 1
#define CWIDGET_VERSION_MINOR 0
#define CWIDGET_VERSION_PATCH 0
#define CWIDGET_VERSION_STR "1.0.0"

/// A version as one number, to compare CWIDGET_VERSION with.
#define CWIDGET_VERSION_CHECK(major, minor, patch) ((major) << 16 | (minor) << 8 | (patch))
#define CWIDGET_VERSION                                                                            \
    CWIDGET_VERSION_CHECK(CWIDGET_VERSION_MAJOR, CWIDGET_VERSION_MINOR, CWIDGET_VERSION_PATCH)

#endif
