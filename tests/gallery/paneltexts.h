#ifndef CWIDGET_TESTS_GALLERY_PANELTEXTS_H
#define CWIDGET_TESTS_GALLERY_PANELTEXTS_H

#include <QList>
#include <QRect>
#include <QString>

class QWidget;

/// A text as it shows in a picture of the panel.
struct ShownText {
    QString text;
    QRect rect;      // around its pixels
    double contrast; // of its strokes against what they cover
};

/// Every text that \a panel shows. Each one is taken away for a moment: what differs then is the
/// text.
QList<ShownText> textsOf(QWidget* panel);

#endif
