#ifndef GALLERY_DEVICESIGN_H
#define GALLERY_DEVICESIGN_H

#include <CWidget>
#include <CWidgetStyle>

/// The sign of an input device or of USB storage in the title strip: bright while the device is
/// attached, dim otherwise.
class DeviceSign : public CWidget
{
    Q_OBJECT

public:
    DeviceSign(CWidgetStyle::DeviceType type, QWidget* parent);

    void refresh();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    CWidgetStyle::DeviceType m_type;
    bool m_attached;
};

#endif
