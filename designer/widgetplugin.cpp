#include "widgetplugin.h"

#include "pagecontainer.h"
#include "widgetrow.h"

#include <CClockProgress>
#include <CDialog>
#include <CPageListWidget>
#include <CSoftKeyPad>
#include <CWidgetStyle>
#include <QFile>
#include <QIcon>
#include <QPixmap>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QExtensionManager>

namespace
{

const int iconSize = 24;
const char styleVariable[] = "QUORLIN_CWIDGET_STYLE";

/// The style that forms are designed with: the installed one, or another one that the environment
/// names.
QString styleFile()
{
    const QString named = QFile::decodeName(qgetenv(styleVariable));
    return named.isEmpty() ? QString::fromUtf8(DESIGNER_STYLE_FILE) : named;
}

/// A form holds the widget itself, and shows it, where an application opens a window later.
void keepInForm(QWidget* widget)
{
    if (qobject_cast<CPageListWidget*>(widget) || qobject_cast<CSoftKeyPad*>(widget) ||
        qobject_cast<CDialog*>(widget))
        widget->setWindowFlags(Qt::Widget);
    if (qobject_cast<CClockProgress*>(widget))
        widget->setVisible(true);
}

QString variableName(const QString& className)
{
    const int prefix = 1; // the C
    return className.at(prefix).toLower() + className.mid(prefix + 1);
}

} // namespace

WidgetPlugin::WidgetPlugin(const WidgetRow& row, QObject* parent)
    : QObject(parent), m_row(row), m_core(nullptr)
{
}

QString WidgetPlugin::name() const
{
    return QString::fromLatin1(m_row.name);
}

QString WidgetPlugin::group() const
{
    return QString::fromLatin1("Quorlin Widgets");
}

QString WidgetPlugin::toolTip() const
{
    return QString::fromLatin1(m_row.toolTip);
}

QString WidgetPlugin::whatsThis() const
{
    return toolTip();
}

/// The forwarding header, in the form that makes it a global one.
QString WidgetPlugin::includeFile() const
{
    return QString::fromLatin1("<%1>").arg(name());
}

/// One cell of one of the library's pictures.
QIcon WidgetPlugin::icon() const
{
    const QPixmap strip(QString::fromLatin1(":/images/%1").arg(QString::fromLatin1(m_row.picture)));
    const QPixmap cell = strip.copy(m_row.pictureLeft, 0, m_row.pictureWidth, strip.height());
    return QIcon(cell.scaled(iconSize, iconSize, Qt::KeepAspectRatio, Qt::SmoothTransformation));
}

bool WidgetPlugin::isContainer() const
{
    return m_row.container;
}

bool WidgetPlugin::hasPages() const
{
    return name() == QLatin1String("CPageWidget");
}

/// What a new one looks like, and how code adds pages to a widget that has them.
QString WidgetPlugin::domXml() const
{
    const QString pages =
        QString::fromLatin1("<customwidgets><customwidget><class>%1</class>"
                            "<addpagemethod>addPage</addpagemethod></customwidget></customwidgets>")
            .arg(name());
    return QString::fromLatin1("<ui language=\"c++\"><widget class=\"%1\" name=\"%2\">"
                               "<property name=\"geometry\"><rect><x>0</x><y>0</y>"
                               "<width>%3</width><height>%4</height></rect></property>%5"
                               "</widget>%6</ui>")
        .arg(name(), variableName(name()))
        .arg(m_row.width)
        .arg(m_row.height)
        .arg(QString::fromLatin1(m_row.properties), hasPages() ? pages : QString());
}

bool WidgetPlugin::isInitialized() const
{
    return m_core != nullptr;
}

/// Called by Qt Designer alone. An application that loads forms names its style file itself.
void WidgetPlugin::initialize(QDesignerFormEditorInterface* core)
{
    if (m_core || !core)
        return;
    m_core = core;
    if (hasPages())
        PageContainerFactory::install(core->extensionManager());
    bool styled = false;
    CWidgetStyle::getWidgetStyle(QLatin1String("CPushButton"), &styled);
    if (!styled)
        CWidgetStyle::initialize(styleFile());
}

QWidget* WidgetPlugin::createWidget(QWidget* parent)
{
    QWidget* const widget = m_row.make(parent);
    if (m_core)
        keepInForm(widget);
    return widget;
}
