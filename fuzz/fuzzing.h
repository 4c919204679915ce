#ifndef CWIDGET_FUZZ_FUZZING_H
#define CWIDGET_FUZZ_FUZZING_H

// What the fuzzers share. libFuzzer calls LLVMFuzzerInitialize() once, which makes the application,
// and then LLVMFuzzerTestOneInput() of the fuzzer with one input after the other.

#include <QByteArray>
#include <QImage>
#include <QString>

#include <fuzzer/FuzzedDataProvider.h>

class QWidget;

namespace fuzzing
{

/// Ends the process, so that libFuzzer keeps the input, when \a holds is false.
void require(bool holds, const char* what);

/// A text of at most \a length characters of any kind.
QString text(FuzzedDataProvider* data, size_t length);

/// Lets \a widget paint itself at its size, which must be a reasonable one.
QImage render(QWidget* widget);

/// A finger on the middle of \a widget, lifted again.
void touch(QWidget* widget);

} // namespace fuzzing

#endif
