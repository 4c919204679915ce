#include "support/costs.h"

#include "parm/parmcheckbox.h"
#include "parm/parmcombobox.h"
#include "parm/parmlabel.h"
#include "parm/parmlineedit.h"

// What a parameter field may cost, counted in events and not in time.

using testing::Cost;

namespace
{

const char styleFile[] = CWIDGET_SOURCE_DIR "/style/widget-style.xml";

// clang-format off

/// The sheet of the line edit is applied once, whatever fonts the field gives it.
const Cost lineEdit[] = {
    {"applied sheets", QEvent::StyleChange, 1, 1},
    {"polishes",       QEvent::Polish,      0, 0},
};

/// That of the box also goes to the list and to what that consists of, and to each of its rows.
const Cost comboBox[] = {
    {"applied sheets", QEvent::StyleChange, 1, 11},
    {"polishes",       QEvent::Polish,      0, 5},
};

/// These have no sheet.
const Cost plain[] = {
    {"applied sheets", QEvent::StyleChange, 0, 0},
    {"polishes",       QEvent::Polish,      0, 0},
};

// clang-format on

} // namespace

class tst_cost_parm : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void constructedFields();
};

void tst_cost_parm::initTestCase()
{
    QVERIFY(CWidgetStyle::initialize(QLatin1String(styleFile)));
}

void tst_cost_parm::constructedFields()
{
    const QString name = QLatin1String("Name");
    const QString value = QLatin1String("Value");
    const QStringList values = QStringList() << value << name << QLatin1String("Third");
    CWIDGET_VERIFY_COSTS(lineEdit, [&] { delete new CParmLineEdit(name, value); });
    CWIDGET_VERIFY_COSTS(comboBox, [&] { delete new CParmComboBox(name, values, value); });
    CWIDGET_VERIFY_COSTS(plain, [&] { delete new CParmCheckBox(name, value); });
    CWIDGET_VERIFY_COSTS(plain, [&] { delete new CParmLabel(name, value); });
}

QTEST_MAIN(tst_cost_parm)
#include "tst_cost_parm.moc"
