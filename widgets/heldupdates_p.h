#ifndef CWIDGET_WIDGETS_HELDUPDATES_P_H
#define CWIDGET_WIDGETS_HELDUPDATES_P_H

#include <QObject>
#include <QPointer>
#include <QWidget>

/// Keeps a widget from being painted as long as this lives, or until the widget emits a signal.
/// Then the widget is painted as soon as the event loop gets to it.
class HeldUpdates : public QObject
{
    Q_OBJECT

public:
    HeldUpdates(QWidget* widget, const char* signal);
    ~HeldUpdates() override;

public Q_SLOTS:
    void resume();

private:
    QPointer<QWidget> m_widget;

    Q_DISABLE_COPY(HeldUpdates)
};

#endif
