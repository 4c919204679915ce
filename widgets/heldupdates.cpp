#include "widgets/heldupdates_p.h"

/// Holds the updates of \a widget until it emits \a signal. Holds nothing where \a signal is null,
/// or the widget is not painted anyway.
HeldUpdates::HeldUpdates(QWidget* widget, const char* signal)
{
    if (!signal || !widget->isVisible() || !widget->updatesEnabled())
        return;
    m_widget = widget;
    connect(widget, signal, this, SLOT(resume()));
    widget->setUpdatesEnabled(false);
}

HeldUpdates::~HeldUpdates()
{
    resume();
}

void HeldUpdates::resume()
{
    if (m_widget)
        m_widget->setUpdatesEnabled(true);
    m_widget = nullptr;
}
