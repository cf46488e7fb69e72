#pragma once

#include <QString>
#include <QStringList>

/// Irrevocable confinement of this process: a decoder that a hostile file controls can neither
/// read or write other files, nor run programs, nor reach the network.
namespace sandbox {

/// The active parts of the confinement.
struct Confinement
{
    bool files = false;   ///< only the permitted files can be opened (Landlock)
    bool network = false; ///< no connection can be made
    bool calls = false;   ///< only system calls that an import needs (seccomp)

    [[nodiscard]] bool isComplete() const { return files && network && calls; }
    bool operator==(const Confinement&) const = default;
};

/// The files that a process needs besides those of the system. Names as console/file_name.h
/// describes them; missing files are ignored.
struct Permissions
{
    QStringList readable; ///< files, and folders with all that is in them
    QStringList writable; ///< folders: files can be created, written and removed there
    bool operator==(const Permissions&) const = default;
};

/// The parts that this system supports. Confines nothing.
[[nodiscard]] Confinement supported();

/// Confines the process as far as the system supports it. Must be called once, before other threads
/// are started and before the first byte of an untrusted file is read.
Confinement confine(const Permissions& permissions);

/// The parts that confine() has activated in this process.
[[nodiscard]] Confinement active();

/// The parts that are active in both.
[[nodiscard]] Confinement common(const Confinement& a, const Confinement& b);

/// Stable names of the active parts: "files", "network", "calls".
[[nodiscard]] QStringList codesOf(const Confinement& confinement);
[[nodiscard]] Confinement confinementOf(const QStringList& codes);

/// User-visible: "files, network, system calls"; "none" if no part is active.
[[nodiscard]] QString describe(const Confinement& confinement);

} // namespace sandbox
