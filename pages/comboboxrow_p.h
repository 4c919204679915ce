#ifndef CWIDGET_PAGES_COMBOBOXROW_P_H
#define CWIDGET_PAGES_COMBOBOXROW_P_H

#include <QObject>
#include <QStringList>

class CComboBox;

/// What Qt tells of the row of a closed combo box: its number, and then its text. Passes the texts
/// of other rows on to the box, and keeps apart those that wait.
class ComboBoxRow : public QObject
{
    Q_OBJECT

public:
    explicit ComboBoxRow(CComboBox* box);

    /// While it lives, the texts of the changes that its own call makes wait in a list: Qt's box
    /// does not survive being deleted by a slot while it changes its row, after that it may. What
    /// slots change meanwhile, at any depth, does not wait.
    class Hold
    {
    public:
        Hold(ComboBoxRow* row, QStringList* texts);
        ~Hold();

    private:
        friend class ComboBoxRow;

        ComboBoxRow* m_row;
        QStringList* m_texts;
        Hold* m_outer;
        int m_pendingTexts;

        Q_DISABLE_COPY(Hold)
    };

private Q_SLOTS:
    void takeNumber(int number);
    void takeText(const QString& text);

private:
    CComboBox* m_box;
    int m_pendingTexts;
    Hold* m_hold;

    Q_DISABLE_COPY(ComboBoxRow)
};

#endif
