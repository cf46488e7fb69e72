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

/// Takes a list of fontconfig's, which belongs to us.
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

/// Without what is in a folder of the list: each entry is a rule, and takes time.
QStringList outermost(QStringList files)
{
    files.sort();
    QStringList kept;
    for (const QString& file : std::as_const(files)) {
        // Sorted: what is in a folder comes after it, but not at once ("/a", "/a-b", "/a/c").
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
                      // Its memory, which a worker reports.
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
