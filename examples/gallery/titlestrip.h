#ifndef GALLERY_TITLESTRIP_H
#define GALLERY_TITLESTRIP_H

#include <CTopTitleArea>
#include <QList>

class CLabel;
class DeviceSign;
class QTimer;

/// The strip along the panel's top: its name, the title of the screen, the signs of what is
/// attached, wireless and lock, and the time.
class TitleStrip : public CTopTitleArea
{
    Q_OBJECT

public:
    explicit TitleStrip(QWidget* parent);

    void setScreenTitle(const QString& title);
    void freezeTime(const QString& time);

public Q_SLOTS:
    void refreshDevices();

private Q_SLOTS:
    void showTime();

private:
    void addSign(const QPixmap& pixmap, int* right);
    void addDeviceSigns(int* right);

    CLabel* m_screenTitle;
    CLabel* m_time;
    QTimer* m_minute;
    QList<DeviceSign*> m_signs;
    QString m_frozenTime;
};

#endif
