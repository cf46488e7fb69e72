#include "sandbox/system_files.h"

#include "console/file_name.h"

#include <QCoreApplication>
#include <QLibraryInfo>

#include <fontconfig/fontconfig.h>

#include <algorithm>

#include <unistd.h>

namespace sandbox {
namespace {

using namespace Qt::StringLiterals;

/// Reads and frees a list that fontconfig has allocated.
void append(FcStrList* list, QStringList& files)
{
    if (list == nullptr) {
        return;
    }
    while (const FcChar8* name = FcStrListNext(list)) {
        files.append(console::fileNameFromBytes(reinterpret_cast<const char*>(name)));
    }
    FcStrListDone(list);
}

/// Removes paths below a folder of the list: each path becomes a rule, which takes time.
QStringList outermost(QStringList files)
{
    files.sort();
    QStringList kept;
    for (const QString& file : std::as_const(files)) {
        // In a sorted list, paths below a folder follow it, but not directly ("/a", "/a-b",
        // "/a/c").
        const bool isInside = std::any_of(kept.cbegin(), kept.cend(), [&](const QString& folder) {
            return file == folder || file.startsWith(folder + u'/');
        });
        if (!isInside) {
            kept.append(file);
        }
    }
    return kept;
}

void appendFonts(QStringList& files)
{
    FcConfig* const fonts = FcConfigGetCurrent();
    if (fonts != nullptr) {
        append(FcConfigGetConfigFiles(fonts), files);
        append(FcConfigGetFontDirs(fonts), files);
        append(FcConfigGetCacheDirs(fonts), files);
    }
}

} // namespace

QStringList systemFiles()
{
    QStringList files{u"/usr/lib"_s, u"/usr/lib32"_s, u"/usr/lib64"_s, u"/usr/libx32"_s,
                      u"/usr/local/lib"_s, u"/usr/share"_s, u"/usr/local/share"_s, u"/lib"_s,
                      u"/lib64"_s, u"/etc/fonts"_s, u"/etc/ld.so.cache"_s, u"/etc/localtime"_s,
                      u"/etc/timezone"_s, u"/dev/urandom"_s, u"/sys/devices/system/cpu"_s,
                      // A worker reports its own memory.
                      u"/proc/%1"_s.arg(::getpid())};
    for (const auto part :
         {QLibraryInfo::LibrariesPath, QLibraryInfo::PluginsPath, QLibraryInfo::TranslationsPath}) {
        files.append(QLibraryInfo::path(part));
    }
    files += QCoreApplication::libraryPaths();
    files.append(QCoreApplication::applicationDirPath());
    appendFonts(files);
    return outermost(files);
}

} // namespace sandbox
