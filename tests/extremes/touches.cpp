#include "extremes/touches.h"

#include "extremes/keypadtyper.h"
#include "pages/combobox.h"
#include "pages/pagelistwidget.h"
#include "pages/pagelistwidgetitemarea.h"
#include "pages/pagewidget.h"
#include "parm/parmcheckbox.h"
#include "parm/parmcombobox.h"
#include "parm/parmlineedit.h"
#include "widgets/lineedit.h"

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>

namespace touches
{

namespace
{

typedef QPointer<QWidget> Target;

void send(const Target& target, QEvent::Type type, const QPoint& point)
{
    if (!target)
        return;
    const Qt::MouseButtons held =
        type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::MouseButtons(Qt::LeftButton);
    QMouseEvent event(type, point, target->mapToGlobal(point), Qt::LeftButton, held,
                      Qt::NoModifier);
    QApplication::sendEvent(target.data(), &event);
}

void touch(const Target& target, const QPoint& down, const QPoint& up)
{
    send(target, QEvent::MouseButtonPress, down);
    send(target, QEvent::MouseMove, up);
    send(target, QEvent::MouseButtonRelease, up);
}

void touchTwice(const Target& target, const QPoint& point)
{
    touch(target, point, point);
    send(target, QEvent::MouseButtonDblClick, point);
    send(target, QEvent::MouseButtonRelease, point);
}

void type(const Target& target, int key, const QString& text)
{
    const QEvent::Type types[] = {QEvent::KeyPress, QEvent::KeyRelease};
    for (QEvent::Type type : types) {
        QKeyEvent event(type, key, Qt::NoModifier, text);
        if (target)
            QApplication::sendEvent(target.data(), &event);
    }
}

QList<Target> partsOf(QWidget* widget)
{
    QList<Target> parts;
    parts.append(widget);
    const QList<QWidget*> children = widget->findChildren<QWidget*>();
    for (int i = 0; i < children.size(); ++i)
        parts.append(children.at(i));
    return parts;
}

void touchPart(const Target& part)
{
    if (!part || !part->isVisible())
        return;
    const QPoint middle = part->rect().center();
    touchTwice(part, middle);
    touch(part, middle, QPoint(-100, -100));
    QCoreApplication::processEvents();
}

template <class Class, class Change>
void changeIf(const Target& target, Change change)
{
    if (Class* const object = qobject_cast<Class*>(target.data()))
        change(object);
}

const int somePage = 1;
const int someEntry = 2;
const char someText[] = "changed";

void changeTexts(const Target& target)
{
    const QString text = QLatin1String(someText);
    changeIf<CLineEdit>(target, [&](CLineEdit* edit) { edit->setText(text); });
    changeIf<CParmLineEdit>(target, [&](CParmLineEdit* field) { field->setText(text); });
    changeIf<CParmCheckBox>(target,
                            [](CParmCheckBox* field) { field->setCheckState(Qt::Unchecked); });
}

void changeEntries(const Target& target)
{
    changeIf<CComboBox>(target, [](CComboBox* box) { box->setCurrentIndex(someEntry); });
    changeIf<CComboBox>(target, [](CComboBox* box) {
        box->setVisibleItems(QStringList(box->items().value(someEntry)), someEntry);
    });
    changeIf<CParmComboBox>(target, [](CParmComboBox* box) { box->setCurrentIndex(someEntry); });
    changeIf<CPageWidget>(target, [](CPageWidget* pages) { pages->setCurrentPage(somePage); });
}

} // namespace

void touchAll(QWidget* widget)
{
    const KeypadTyper typer;
    const QList<Target> parts = partsOf(widget);
    for (int i = 0; i < parts.size(); ++i)
        touchPart(parts.at(i));
}

void typeAll(QWidget* widget)
{
    const QList<Target> parts = partsOf(widget);
    for (int i = 0; i < parts.size(); ++i) {
        type(parts.at(i), Qt::Key_A, QLatin1String("a"));
        type(parts.at(i), Qt::Key_Down, QString());
        type(parts.at(i), Qt::Key_Backspace, QString());
        type(parts.at(i), Qt::Key_Space, QLatin1String(" "));
        type(parts.at(i), Qt::Key_Return, QLatin1String("\r"));
        type(parts.at(i), Qt::Key_Escape, QString());
    }
}

void changeAll(QWidget* widget)
{
    const Target target(widget);
    changeTexts(target);
    changeEntries(target);
    changeIf<CComboBox>(target, [](CComboBox* box) { box->showPopup(); });
    if (target)
        touchAll(target.data()); // the rows of an open list among it
    changeIf<QDialog>(target, [](QDialog* dialog) { dialog->accept(); });
    changeIf<QDialog>(target, [](QDialog* dialog) { dialog->reject(); });
}

} // namespace touches
