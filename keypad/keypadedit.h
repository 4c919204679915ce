#ifndef CWIDGET_KEYPAD_KEYPADEDIT_H
#define CWIDGET_KEYPAD_KEYPADEDIT_H

#include "keypadfactory.h"

#include <QTextEdit>

class CTopTitleArea;

/// The entry field of a keypad under a strip with its title. A keyboard may type into it too: what
/// the kind of keypad does not allow is taken away again.
class CWIDGET_EXPORT CKeyPadEdit : public QTextEdit
{
    Q_OBJECT

public:
    explicit CKeyPadEdit(QWidget* parent = nullptr);
    ~CKeyPadEdit() override;

    void setSKPType(CKeyPadFactory::KeyPadType type);
    void setFixedSize(int width, int height);
    using QWidget::setFixedSize;
    void setText(const QString& title, const QString& text);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QString m_title;
    QString m_text;
    CKeyPadFactory::KeyPadType m_keyPadType;
    CTopTitleArea* m_titleStrip;

    Q_DISABLE_COPY(CKeyPadEdit)
};

#endif
