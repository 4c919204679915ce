#ifndef CWIDGET_DESIGNER_PAGECONTAINER_H
#define CWIDGET_DESIGNER_PAGECONTAINER_H

#include <QObject>
#include <QtDesigner/QAbstractExtensionFactory>
#include <QtDesigner/QDesignerContainerExtension>

class CPageWidget;
class QExtensionManager;

/// Lets Qt Designer add, take out and turn the pages of a page widget.
class PageContainer : public QObject, public QDesignerContainerExtension
{
    Q_OBJECT
    Q_INTERFACES(QDesignerContainerExtension)

public:
    PageContainer(CPageWidget* pages, QObject* parent);

    int count() const override;
    QWidget* widget(int index) const override;
    int currentIndex() const override;
    void setCurrentIndex(int index) override;
    bool canAddWidget() const override;
    void addWidget(QWidget* page) override;
    void insertWidget(int index, QWidget* page) override;
    bool canRemove(int index) const override;
    void remove(int index) override;

private:
    CPageWidget* m_pages;
};

/// Makes one PageContainer for every page widget of a form.
class PageContainerFactory : public QObject, public QAbstractExtensionFactory
{
    Q_OBJECT
    Q_INTERFACES(QAbstractExtensionFactory)

public:
    static void install(QExtensionManager* manager);

    QObject* extension(QObject* object, const QString& iid) const override;

private:
    explicit PageContainerFactory(QExtensionManager* manager);
};

#endif
