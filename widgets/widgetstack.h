#ifndef CWIDGET_WIDGETS_WIDGETSTACK_H
#define CWIDGET_WIDGETS_WIDGETSTACK_H

#include "../style/global.h"

#include <QVector>

class QWidget;

/// The screens of a front panel, the current one on top. Showing a CWidget with automatic
/// management pushes it and hides the one below; popping brings that back. There is one stack per
/// process, for the GUI thread. It does not own the widgets: one is popped before it is deleted.
class CWIDGET_EXPORT KQWidgetStack
{
public:
    static KQWidgetStack* instance();

    void push(QWidget* widget);
    QWidget* top();
    QWidget* pop();
    int popAll();
    int size() const;

private:
    friend class CWidget;

    KQWidgetStack();
    void recordShown(QWidget* widget);

    static KQWidgetStack* m_pInstance;

    QVector<QWidget*> m_stack;
    bool m_recording;

    Q_DISABLE_COPY(KQWidgetStack)
};

#endif
