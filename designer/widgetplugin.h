#ifndef CWIDGET_DESIGNER_WIDGETPLUGIN_H
#define CWIDGET_DESIGNER_WIDGETPLUGIN_H

#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

struct WidgetRow;

/// One class of the library in the widget box of Qt Designer, and for whoever loads forms.
class WidgetPlugin : public QObject, public QDesignerCustomWidgetInterface
{
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    WidgetPlugin(const WidgetRow& row, QObject* parent);

    QString name() const override;
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    QString includeFile() const override;
    QIcon icon() const override;
    bool isContainer() const override;
    QString domXml() const override;

    bool isInitialized() const override;
    void initialize(QDesignerFormEditorInterface* core) override;
    QWidget* createWidget(QWidget* parent) override;

private:
    bool hasPages() const;

    const WidgetRow& m_row;
    QDesignerFormEditorInterface* m_core;
};

#endif
