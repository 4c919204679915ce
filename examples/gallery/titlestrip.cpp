#include "titlestrip.h"

#include "devicesign.h"
#include "gallerywidgets.h"

#include <QPalette>
#include <QTime>
#include <QTimer>

namespace
{

const int textLeft = 18;
const int gap = 12;
const int rightMargin = layout::margin;
const int timeWidth = 58;

const CWidgetStyle::DeviceType devices[] = {
    CWidgetStyle::DeviceStorage,
    CWidgetStyle::DeviceMouse,
    CWidgetStyle::DeviceKeyboard,
};

/// From now to the first moment of the next minute, in ms.
int restOfMinute()
{
    const QTime now = QTime::currentTime();
    return 60 * 1000 - now.second() * 1000 - now.msec();
}

} // namespace

TitleStrip::TitleStrip(QWidget* parent) : CTopTitleArea(parent)
{
    setSize(CWidgetStyle::getSize(CWidgetStyle::TopBarSize));
    setBackground(QPixmap(QLatin1String(":/images/UTIL_TB_BKGROUND.png")));
    QPalette light = palette();
    light.setColor(QPalette::WindowText, Qt::white);
    setPalette(light);
    setTitle(QLatin1String("Quorlin front panel"));
    setWidgetStyle(CWidgetStyle::getWidgetStyle(QLatin1String("CTopTitleArea")));

    m_screenTitle = plainLabel(QString(), this);
    m_screenTitle->setTextColor(CWidgetStyle::getColor(CWidgetStyle::Color5));
    m_screenTitle->setGeometry(textLeft, 21, 300, 20);
    m_screenTitle->setHeight(20);

    m_time = plainLabel(QString(), this);
    m_time->setTextColor(Qt::white);
    m_time->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    int right = width() - rightMargin + 2;
    right -= timeWidth;
    m_time->setGeometry(right, 8, timeWidth, 28);
    right -= gap;

    addSign(CWidgetStyle::getWIFISignalStatus(CWidgetStyle::Signal75), &right);
    addSign(CWidgetStyle::getLockStatus(CWidgetStyle::Locked), &right);
    addDeviceSigns(&right);

    m_minute = new QTimer(this);
    m_minute->setSingleShot(true);
    connect(m_minute, SIGNAL(timeout()), this, SLOT(showTime()));
    showTime();
}

void TitleStrip::setScreenTitle(const QString& title)
{
    m_screenTitle->setText(title);
}

/// Shows \a time from now on, so that pictures of the panel are the same at any time.
void TitleStrip::freezeTime(const QString& time)
{
    m_frozenTime = time;
    showTime();
}

/// The time changes by the minute, so the strip sleeps until the next one.
void TitleStrip::showTime()
{
    m_time->setText(m_frozenTime.isEmpty() ? QTime::currentTime().toString(QLatin1String("HH:mm"))
                                           : m_frozenTime);
    m_minute->start(restOfMinute());
}

/// Looks again at what is attached.
void TitleStrip::refreshDevices()
{
    for (int i = 0; i < m_signs.size(); ++i)
        m_signs.at(i)->refresh();
}

void TitleStrip::addSign(const QPixmap& pixmap, int* right)
{
    CWidget* sign = new CWidget(this);
    sign->setSize(pixmap.size());
    sign->setBackground(pixmap);
    *right -= pixmap.width();
    sign->move(*right, (height() - pixmap.height()) / 2);
    *right -= gap;
}

void TitleStrip::addDeviceSigns(int* right)
{
    for (size_t i = 0; i < sizeof devices / sizeof devices[0]; ++i) {
        DeviceSign* sign = new DeviceSign(devices[i], this);
        *right -= sign->width();
        sign->move(*right, (height() - sign->height()) / 2);
        *right -= gap;
        m_signs.append(sign);
    }
}
