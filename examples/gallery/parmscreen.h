#ifndef GALLERY_PARMSCREEN_H
#define GALLERY_PARMSCREEN_H

#include "gallerywidgets.h"

#include <CPageWidget>
#include <CParmCheckBox>
#include <CParmComboBox>
#include <CParmLabel>
#include <CParmLineEdit>

class Panel;
class QVBoxLayout;

/// The settings of a device: a page set of parameter fields. A check box turns a hidden page on.
class ParmScreen : public Screen
{
    Q_OBJECT

public:
    explicit ParmScreen(Panel* panel);

Q_SIGNALS:
    void hint(const QString& text);

private Q_SLOTS:
    void textEntered(const QString& text);
    void choiceMade(int index);
    void saved();
    void serviceChanged(int state);

private:
    QVBoxLayout* addPage(const QString& title);
    void addLabel(QVBoxLayout* page, const char* name, const char* value);
    CParmLineEdit* addEdit(QVBoxLayout* page, const char* name, const char* value,
                           CKeyPadFactory::KeyPadType type);
    CParmComboBox* addChoice(QVBoxLayout* page, const char* name, const char* const* items,
                             int count, const char* current);
    CParmCheckBox* addSwitch(QVBoxLayout* page, const char* name, const char* text);
    void addNetworkPage();
    void addTimePage();
    void addMeasurementPage();
    void addUnitsPage();
    void addServicePage();

    CPageWidget* m_pages;
};

#endif
