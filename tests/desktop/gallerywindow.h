#ifndef CWIDGET_TESTS_DESKTOP_GALLERYWINDOW_H
#define CWIDGET_TESTS_DESKTOP_GALLERYWINDOW_H

#include "support/testing.h"

#include <QProcess>

/// The gallery, or another panel, as a process of its own, on the X server of the test, and its
/// window as a person sees it. All points are the panel's.
class GalleryWindow
{
public:
    explicit GalleryWindow(const QStringList& arguments = QStringList());
    GalleryWindow(const QString& title, const QString& program, const QStringList& arguments);
    ~GalleryWindow();

    bool isRunning();
    int exitCode();

    /// Waits until the window is on the screen.
    bool waitUntilShown();

    void press(const QPoint& point);
    void moveTo(const QPoint& point);
    void release();
    void click(const QPoint& point);

    /// Waits until another click at the same place is no double click.
    void separateClicks() const;
    void close();

    /// Ends it by a signal that cannot be caught.
    void kill();

    /// The pixels of the window on the screen.
    QImage grab() const;

    /// Waits for the next line that the gallery prints, given --log; a null text when none comes.
    QString nextLine();

    /// Waits until the pixel at \a point has a colour.
    bool waitForColor(const QPoint& point, const QColor& color) const;

    /// Waits until the part \a rect of the window looks like that of \a expected. Empty then; else
    /// what differs.
    QString waitFor(const QImage& expected, const QRect& rect) const;

    /// The pictures that the gallery itself draws, by the names of the screens.
    static QImage shot(const QString& name);

private:
    void start(const QString& program, const QStringList& arguments);

    QString m_title;
    QString m_id;
    QPoint m_origin;
    QProcess m_process;
};

#endif
