#include "sandbox/confinement.h"

#include "sandbox/call_filter.h"
#include "sandbox/file_rules.h"
#include "sandbox/system_files.h"

#include <QCoreApplication>

#include <array>

#include <sys/prctl.h>

namespace sandbox {
using namespace Qt::StringLiterals;
namespace {

struct Part
{
    bool Confinement::*member;
    QLatin1String code;
    const char* name;
};

constexpr std::array Parts{
    Part{&Confinement::files, QLatin1String("files"),
         QT_TRANSLATE_NOOP("sandbox::Confinement", "files")},
    Part{&Confinement::network, QLatin1String("network"),
         QT_TRANSLATE_NOOP("sandbox::Confinement", "network")},
    Part{&Confinement::calls, QLatin1String("calls"),
         QT_TRANSLATE_NOOP("sandbox::Confinement", "system calls")},
};

Confinement& state()
{
    static Confinement confinement;
    return confinement;
}

} // namespace

Confinement supported()
{
    const int version = fileRulesVersion();
    const bool calls = canFilterCalls();
    // Without sockets there is no network either.
    return {version > 0, version >= FirstVersionWithNetwork || calls, calls};
}

Confinement confine(const Permissions& permissions)
{
    // Otherwise only a privileged process may confine itself.
    if (::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0) {
        return {};
    }
    QStringList readable = systemFiles();
    readable += permissions.readable;
    const int version = applyFileRules(readable, permissions.writable);
    const bool calls = filterCalls();
    state() = {version > 0, version >= FirstVersionWithNetwork || calls, calls};
    return state();
}

Confinement active()
{
    return state();
}

Confinement common(const Confinement& a, const Confinement& b)
{
    return {a.files && b.files, a.network && b.network, a.calls && b.calls};
}

QStringList codesOf(const Confinement& confinement)
{
    QStringList codes;
    for (const Part& part : Parts) {
        if (confinement.*part.member) {
            codes.append(part.code);
        }
    }
    return codes;
}

Confinement confinementOf(const QStringList& codes)
{
    Confinement confinement;
    for (const Part& part : Parts) {
        confinement.*part.member = codes.contains(part.code);
    }
    return confinement;
}

QString describe(const Confinement& confinement)
{
    QStringList names;
    for (const Part& part : Parts) {
        if (confinement.*part.member) {
            names.append(QCoreApplication::translate("sandbox::Confinement", part.name));
        }
    }
    return names.isEmpty() ? QCoreApplication::translate("sandbox::Confinement", "none")
                           : names.join(u", "_s);
}

} // namespace sandbox
