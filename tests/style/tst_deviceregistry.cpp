#include "support/testing.h"

#include <QApplication>
#include <QThread>

namespace
{

const CWidgetStyle::DeviceType types[] = {CWidgetStyle::DeviceKeyboard, CWidgetStyle::DeviceMouse,
                                          CWidgetStyle::DeviceStorage};

/// Writes the registry, as a hot-plug watcher of another thread does.
class Writer : public QThread
{
protected:
    void run() override
    {
        for (int i = 0; i < 20000; ++i) {
            CWidgetStyle::setDeviceAvailable(types[i % 3], i % 2 == 0);
            CWidgetStyle::setUSBDir(QString::number(i));
        }
    }
};

} // namespace

class tst_deviceregistry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void numbersOfTheDevices();
    void nothingIsAvailableAtStart();
    void lastWordCounts();
    void kindsAreIndependent();
    void usbDirectory();
    void anyThreadMayWrite();
};

void tst_deviceregistry::numbersOfTheDevices()
{
    QCOMPARE(static_cast<int>(CWidgetStyle::DeviceKeyboard), 1);
    QCOMPARE(static_cast<int>(CWidgetStyle::DeviceMouse), 2);
    QCOMPARE(static_cast<int>(CWidgetStyle::DeviceStorage), 3);
}

void tst_deviceregistry::nothingIsAvailableAtStart()
{
    for (size_t i = 0; i < 3; ++i)
        QVERIFY(!CWidgetStyle::isDeviceAvailable(types[i]));
    QVERIFY(!CWidgetStyle::isDeviceAvailable(static_cast<CWidgetStyle::DeviceType>(0)));
    QVERIFY(CWidgetStyle::getUSBDir().isNull());
}

void tst_deviceregistry::lastWordCounts()
{
    CWidgetStyle::setDeviceAvailable(CWidgetStyle::DeviceMouse, true);
    QVERIFY(CWidgetStyle::isDeviceAvailable(CWidgetStyle::DeviceMouse));
    CWidgetStyle::setDeviceAvailable(CWidgetStyle::DeviceMouse, true);
    QVERIFY(CWidgetStyle::isDeviceAvailable(CWidgetStyle::DeviceMouse));
    CWidgetStyle::setDeviceAvailable(CWidgetStyle::DeviceMouse, false);
    QVERIFY(!CWidgetStyle::isDeviceAvailable(CWidgetStyle::DeviceMouse));
}

void tst_deviceregistry::kindsAreIndependent()
{
    for (size_t set = 0; set < 3; ++set) {
        CWidgetStyle::setDeviceAvailable(types[set], true);
        for (size_t other = 0; other < 3; ++other)
            QCOMPARE(CWidgetStyle::isDeviceAvailable(types[other]), other == set);
        CWidgetStyle::setDeviceAvailable(types[set], false);
    }
}

void tst_deviceregistry::usbDirectory()
{
    CWidgetStyle::setUSBDir(QLatin1String("/media/usb0"));
    QCOMPARE(CWidgetStyle::getUSBDir(), QString::fromLatin1("/media/usb0"));
    CWidgetStyle::setUSBDir(QString());
    QVERIFY(CWidgetStyle::getUSBDir().isNull());
}

void tst_deviceregistry::anyThreadMayWrite()
{
    Writer writer;
    writer.start();
    int seen = 0;
    while (!writer.isFinished()) {
        seen += CWidgetStyle::isDeviceAvailable(types[seen % 3]) ? 1 : 2;
        CWidgetStyle::getUSBDir();
    }
    writer.wait();
    QVERIFY(seen > 0);
    QCOMPARE(CWidgetStyle::getUSBDir(), QString::fromLatin1("19999"));
    QVERIFY(!CWidgetStyle::isDeviceAvailable(types[19999 % 3]));
    QVERIFY(CWidgetStyle::isDeviceAvailable(types[19998 % 3]));
}

QTEST_MAIN(tst_deviceregistry)
#include "tst_deviceregistry.moc"
