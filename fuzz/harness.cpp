#include "fuzz/harness.h"

#include <QApplication>
#include <QEvent>
#include <QLoggingCategory>

#include <cstdint>

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv);
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

// Fonts that are looked up stay with fontconfig until the process ends.
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions()
{
    return "leak:libfontconfig\n";
}

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QLoggingCategory::setFilterRules(QStringLiteral("*=false"));
    // Lives as long as the process: libFuzzer leaves without returning from main.
    static int argumentCount = *argc;
    static QApplication application(argumentCount, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzzOneInput(QByteArray(reinterpret_cast<const char*>(data), qsizetype(size)));
    // What an event loop would do: without it, events of every input so far would pile up.
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return 0;
}
