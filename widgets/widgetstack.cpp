#include "widgets/widgetstack.h"

#include <QWidget>

KQWidgetStack* KQWidgetStack::m_pInstance = nullptr;

KQWidgetStack::KQWidgetStack() : m_recording(true)
{
}

/// The stack of the process, made by the first call and never destroyed.
KQWidgetStack* KQWidgetStack::instance()
{
    if (!m_pInstance)
        m_pInstance = new KQWidgetStack;
    return m_pInstance;
}

/// Puts \a widget on top, whatever it is; nothing is shown or hidden. The caller keeps it.
void KQWidgetStack::push(QWidget* widget)
{
    m_stack.append(widget);
}

/// The widget on top; null when the stack is empty.
QWidget* KQWidgetStack::top()
{
    return m_stack.isEmpty() ? 0 : m_stack.last();
}

/// Takes the top widget off, hides it, shows the one below and returns the one taken; null when the
/// stack is empty.
QWidget* KQWidgetStack::pop()
{
    if (m_stack.isEmpty())
        return nullptr;
    QWidget* widget = m_stack.last();
    m_stack.remove(m_stack.size() - 1);
    if (!widget)
        return nullptr;
    widget->setVisible(false);
    if (!m_stack.isEmpty()) {
        m_recording = false; // the widget below is shown, not pushed again
        if (top())
            top()->setVisible(true);
    }
    return widget;
}

/// Pops every widget that is on the stack at the call and returns their number. All are hidden
/// afterwards.
int KQWidgetStack::popAll()
{
    const int count = size();
    for (int i = 0; i < count; ++i)
        pop();
    return count;
}

/// The number of entries.
int KQWidgetStack::size() const
{
    return m_stack.size();
}

/// Called when an automatically managed widget is shown: hides the one on top and pushes this one,
/// unless it is on top already or the show came from pop().
void KQWidgetStack::recordShown(QWidget* widget)
{
    if (m_recording && top() != widget) {
        if (top())
            top()->setVisible(false);
        push(widget);
    }
    m_recording = true;
}
