#include "pagecontainer.h"

#include <CPageWidget>
#include <QtDesigner/QExtensionManager>

PageContainer::PageContainer(CPageWidget* pages, QObject* parent) : QObject(parent), m_pages(pages)
{
}

int PageContainer::count() const
{
    return m_pages->count();
}

QWidget* PageContainer::widget(int index) const
{
    return m_pages->widget(index);
}

int PageContainer::currentIndex() const
{
    return m_pages->currentIndex();
}

void PageContainer::setCurrentIndex(int index)
{
    m_pages->setCurrentPage(index);
}

bool PageContainer::canAddWidget() const
{
    return true;
}

void PageContainer::addWidget(QWidget* page)
{
    m_pages->addPage(page);
}

void PageContainer::insertWidget(int index, QWidget* page)
{
    m_pages->insertPage(index, page);
}

bool PageContainer::canRemove(int index) const
{
    return m_pages->widget(index) != nullptr;
}

void PageContainer::remove(int index)
{
    m_pages->removePage(index);
}

PageContainerFactory::PageContainerFactory(QExtensionManager* manager) : QObject(manager)
{
}

/// Makes \a manager, which owns the factory, ask it from now on.
void PageContainerFactory::install(QExtensionManager* manager)
{
    manager->registerExtensions(new PageContainerFactory(manager),
                                Q_TYPEID(QDesignerContainerExtension));
}

/// The extension \a iid of \a object, a child of it, made when it is first asked for; null when
/// that is none of a page widget.
QObject* PageContainerFactory::extension(QObject* object, const QString& iid) const
{
    CPageWidget* const pages = qobject_cast<CPageWidget*>(object);
    if (!pages || iid != Q_TYPEID(QDesignerContainerExtension))
        return nullptr;
    PageContainer* const made =
        pages->findChild<PageContainer*>(QString(), Qt::FindDirectChildrenOnly);
    return made ? made : new PageContainer(pages, pages);
}
