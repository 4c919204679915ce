#ifndef CWIDGET_STYLE_STYLE_H
#define CWIDGET_STYLE_STYLE_H

#include <QColor>
#include <QFont>
#include <QList>
#include <QString>

/// How one part of a widget looks: a plain value, copied freely.
struct Style {
    /// The part that an entry styles. Widgets of a single part act on FieldAll only.
    enum Field : int {
        FieldName = 0,  ///< the name part of a parameter field
        FieldValue = 1, ///< the value part of a parameter field
        FieldAll = 2    ///< all of the widget
    };

    Style() : field(FieldName)
    {
    }

    /// the part that this entry styles
    Field field;
    QFont font;           ///< a default font when the style file names none
    QColor foreground;    ///< colour of texts; left out, it is invalid and clears a field's own
    QColor background;    ///< colour of the background; left out, it is invalid and clears it
    QColor reservedColor; ///< carried along; the style file does not fill it, no widget reads it
};

/// All that the style file says about the widgets of one name.
struct WidgetStyle {
    WidgetStyle() : type(0)
    {
    }

    quint32 type;        ///< type code as in CWidget::type(), only for the lookup by type
    QString name;        ///< by convention the class name of the widgets
    QList<Style> styles; ///< at most one per field, in the order of Style::Field
};

#endif
