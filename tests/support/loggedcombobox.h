#ifndef CWIDGET_TESTS_SUPPORT_LOGGEDCOMBOBOX_H
#define CWIDGET_TESTS_SUPPORT_LOGGEDCOMBOBOX_H

#include "pages/combobox.h"
#include "pages/pagelistwidget.h"
#include "pages/pagelistwidgetitem.h"
#include "support/signaltools.h"
#include "support/testing.h"

inline QString text(const char* latin1)
{
    return QString::fromLatin1(latin1);
}

/// Owns a box whose signals are written down, "row" being Qt's own of the closed box.
struct LoggedComboBox {
    explicit LoggedComboBox(const QStringList& texts = numberedTexts(7),
                            CComboBox* watched = new CComboBox)
        : box(watched)
    {
        box->addItems(texts);
        tap("row", SIGNAL(currentIndexChanged(int)));
        tap("text", SIGNAL(currentValueChanged(QString)));
        tap("index", SIGNAL(currentValueChanged(int)));
        tap("activated", SIGNAL(activated(int)));
        tap("item", SIGNAL(currentItemActivated(int)));
        box->show();
    }

    ~LoggedComboBox()
    {
        qDeleteAll(taps);
        delete box;
    }

    void tap(const char* name, const char* signal)
    {
        taps.append(new SignalTap(&log, name, box, signal));
    }

    CPageListWidget* list() const
    {
        return box->findChild<CPageListWidget*>();
    }

    void touch(int row)
    {
        box->showPopup();
        QTest::mouseClick(list()->findChildren<CPageListWidgetItem*>().at(row), Qt::LeftButton);
    }

    /// The signals since the last call.
    QString taken()
    {
        const QString result = log.join(QString::fromLatin1(" "));
        log.clear();
        return result;
    }

    QPointer<CComboBox> box;
    QStringList log;
    QList<SignalTap*> taps;
};

#endif
