#include "collection.h"

#include "widgetplugin.h"
#include "widgetrow.h"

Collection::Collection(QObject* parent) : QObject(parent)
{
    for (int i = 0; i < widgetRowCount; ++i)
        m_widgets.append(new WidgetPlugin(widgetRows[i], this));
}

QList<QDesignerCustomWidgetInterface*> Collection::customWidgets() const
{
    return m_widgets;
}
