#ifndef CWIDGET_WIDGETS_DIALOG_H
#define CWIDGET_WIDGETS_DIALOG_H

#include "../style/global.h"

#include <QColor>
#include <QDialog>

/// A dialog with a background of a colour and a border, the base of an application's own dialogs.
class CWIDGET_EXPORT CDialog : public QDialog
{
    Q_OBJECT

public:
    explicit CDialog(QWidget* parent = nullptr);
    ~CDialog() override;

    virtual bool initialize();
    virtual bool load(const QString& name);
    virtual bool save(const QString& name);
    virtual void setSize(int width, int height);
    virtual void setWidth(int width);
    virtual void setHeight(int height);

    int getBorderWidth() const;
    void setBorderWidth(int width);
    QColor getBorderColor() const;
    void setBorderColor(const QColor& color);
    QColor getBackgroundColor() const;
    void setBackgroundColor(const QColor& color);

Q_SIGNALS:
    /// For applications; the library does not emit it.
    void visible(bool bVisible);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int m_borderWidth;
    QColor m_borderColor;
    QColor m_backgroundColor;

    Q_DISABLE_COPY(CDialog)
};

#endif
