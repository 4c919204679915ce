#ifndef CWIDGET_DESIGNER_WIDGETROW_H
#define CWIDGET_DESIGNER_WIDGETROW_H

#include <QtGlobal>

class QWidget;

/// What Qt Designer is told of one class.
struct WidgetRow {
    const char* name;
    QWidget* (*make)(QWidget* parent);
    bool container;
    int width; // of a new one, in pixels
    int height;
    const char* picture; // of the library; the icon is cut out of it
    int pictureLeft;
    int pictureWidth;
    const char* toolTip;
    const char* properties; // of a new one, and what is in it, as a form has them
};

extern const WidgetRow widgetRows[];
extern const int widgetRowCount;

#endif
