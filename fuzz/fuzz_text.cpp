// Texts of any characters on widgets of any size: every layout ends, and nothing is painted
// differently when it is painted again.

#include "fuzzing.h"

#include "widgets/checkbox.h"
#include "widgets/label.h"
#include "widgets/pushbutton.h"

namespace
{

QFont font(FuzzedDataProvider* data)
{
    QFont font(data->ConsumeBool() ? QString::fromLatin1("Arial") : QString::fromLatin1("Courier"));
    font.setPixelSize(data->ConsumeIntegralInRange<int>(1, 60));
    font.setBold(data->ConsumeBool());
    return font;
}

/// Qt may choose other fonts for rare characters once it has drawn them, so the first time does not
/// count.
void paintAgain(QWidget* widget, const QSize& size)
{
    widget->resize(size);
    fuzzing::render(widget);
    const QImage first = fuzzing::render(widget);
    fuzzing::require(fuzzing::render(widget) == first, "painting changes nothing");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size)
{
    FuzzedDataProvider data(bytes, size);
    const QSize area(data.ConsumeIntegralInRange<int>(0, 300),
                     data.ConsumeIntegralInRange<int>(0, 200));
    const QFont textFont = font(&data);

    CLabel label;
    label.setFont(textFont);
    label.setTextSize(data.ConsumeIntegralInRange<int>(-1, 40));
    label.setWrapMode(static_cast<CLabel::WrapMode>(data.ConsumeIntegralInRange<int>(-1, 3)));
    label.setAlignment(static_cast<Qt::Alignment>(data.ConsumeIntegral<uint8_t>()));
    label.setCornerText(fuzzing::text(&data, 20));

    CPushButton button;
    button.setFont(textFont);
    CCheckBox box;
    box.setFont(textFont);

    const QString text = fuzzing::text(&data, 2000);
    label.setText(text);
    button.setText(text);
    box.setText(text);
    paintAgain(&label, area);
    paintAgain(&button, area);
    paintAgain(&box, area);
    fuzzing::require(label.text() == text && box.text() == text, "the text stays as it was set");
    return 0;
}
