#include "fuzz/harness.h"

#include <QApplication>
#include <QEvent>
#include <QLoggingCategory>

#include <cstdint>

using namespace Qt::Literals::StringLiterals;

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv);
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

// Fontconfig keeps the fonts that were looked up until the process ends.
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions()
{
    return "leak:libfontconfig\n";
}

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QLoggingCategory::setFilterRules(u"*=false"_s);
    // Never deleted: libFuzzer exits without returning from main.
    static int argumentCount = *argc;
    static QApplication application(argumentCount, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzzOneInput(QByteArray(reinterpret_cast<const char*>(data), qsizetype(size)));
    // Replaces an event loop: otherwise the events of all inputs would accumulate.
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return 0;
}
