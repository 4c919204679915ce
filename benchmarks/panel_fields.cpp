// Fields: single ones, pages of them, and a restyled panel.

#include "bench.h"
#include "jobs.h"

#include "pages/combobox.h"
#include "parm/parmcheckbox.h"
#include "parm/parmcombobox.h"
#include "parm/parmlabel.h"
#include "parm/parmlineedit.h"
#include "style/widgetstyle.h"
#include "widgets/label.h"
#include "widgets/lineedit.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace
{

const int restyledCount = 1000;
const int pageCount = 2;
const int fieldCount = 10;

// The sheets of our own fields, for a fair stock field.
extern const char boxSheet[];
extern const char lineSheet[];
const char boxSheet[] =
    "QComboBox{border:0px;} "
    "QComboBox::drop-down{top:4px;right:4px;image:url(:/images/drop-down.png)};";
const char lineSheet[] = "border: 0px;";

template <typename Field>
void construct(benchmark::State& state)
{
    while (state.KeepRunning()) {
        Field* field = new Field;
        state.PauseTiming();
        delete field;
        state.ResumeTiming();
    }
}

template <typename Field, const char* sheet>
class Sheeted : public Field
{
public:
    Sheeted()
    {
        this->setStyleSheet(QLatin1String(sheet));
    }
};

// ---- parameter pages

QStringList choices()
{
    return QStringList() << QLatin1String("slow") << QLatin1String("medium")
                         << QLatin1String("fast");
}

QWidget* ourField(int number, QWidget* parent)
{
    const QString name = QString::fromLatin1("Parameter %1").arg(number);
    switch (number % 5) {
    case 0:
        return new CParmComboBox(name, choices(), QLatin1String("fast"), parent);
    case 1:
        return new CParmCheckBox(name, QLatin1String("on"), parent);
    case 2:
        return new CParmLabel(name, QLatin1String("12.5"), parent);
    default:
        return new CParmLineEdit(name, QLatin1String("12.5"), parent);
    }
}

QWidget* stockValue(int number)
{
    if (number % 5 == 0) {
        QComboBox* box = new QComboBox;
        box->addItems(choices());
        return box;
    }
    if (number % 5 == 1)
        return new QCheckBox(QLatin1String("on"));
    if (number % 5 == 2)
        return new QLabel(QLatin1String("12.5"));
    return new QLineEdit(QLatin1String("12.5"));
}

QWidget* stockField(int number, QWidget* parent)
{
    QWidget* field = new QWidget(parent);
    QHBoxLayout* layout = new QHBoxLayout(field);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(new QLabel(QString::fromLatin1("Parameter %1").arg(number)));
    layout->addWidget(stockValue(number));
    return field;
}

typedef QWidget* (*FieldMaker)(int number, QWidget* parent);

template <FieldMaker maker>
void buildPages(benchmark::State& state)
{
    while (state.KeepRunning()) {
        QWidget* pages = new QWidget;
        QHBoxLayout* row = new QHBoxLayout(pages);
        for (int page = 0; page < pageCount; ++page) {
            QVBoxLayout* column = new QVBoxLayout;
            row->addLayout(column);
            for (int i = 0; i < fieldCount; ++i)
                column->addWidget(maker(i, pages));
        }
        pages->show();
        bench::settle();
        state.PauseTiming();
        delete pages;
        state.ResumeTiming();
    }
}

// ---- another font for a thousand widgets

void restyleOurs(benchmark::State& state)
{
    bench::restyleLabels(state, restyledCount);
}

void restyleStock(benchmark::State& state)
{
    bench::restyleStockLabels(state, restyledCount);
}

} // namespace

void bench::addFields()
{
    add("combo box, construct", "stock", construct<QComboBox>);
    add("combo box, construct", "sheet", construct<Sheeted<QComboBox, boxSheet>>);
    add("combo box, construct", "ours", construct<CComboBox>);
    add("line edit, construct", "stock", construct<QLineEdit>);
    add("line edit, construct", "sheet", construct<Sheeted<QLineEdit, lineSheet>>);
    add("line edit, construct", "ours", construct<CLineEdit>);
    add("two pages of 10 parameters, build and show", "stock", buildPages<stockField>);
    add("two pages of 10 parameters, build and show", "ours", buildPages<ourField>);
    add("1,000 widgets restyled", "stock", restyleStock);
    add("1,000 widgets restyled", "ours", restyleOurs);
}
