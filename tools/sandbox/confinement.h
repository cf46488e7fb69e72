#pragma once

#include <QString>
#include <QStringList>

/// Irrevocable confinement of this process: a decoder that a hostile file controls can neither
/// read or write other files, nor run programs, nor reach the network.
namespace sandbox {

/// What of the confinement is in force.
struct Confinement
{
    bool files = false;   ///< only the permitted files can be opened (Landlock)
    bool network = false; ///< no connection can be made
    bool calls = false;   ///< only system calls that an import needs (seccomp)

    [[nodiscard]] bool isComplete() const { return files && network && calls; }
    bool operator==(const Confinement&) const = default;
};

/// The files that a process needs besides those of the system. Names as console/file_name.h
/// describes them; what does not exist is left out.
struct Permissions
{
    QStringList readable; ///< files, and folders with all that is in them
    QStringList writable; ///< folders: files can be created, written and removed there
    bool operator==(const Permissions&) const = default;
};

/// What this system offers. Changes nothing.
[[nodiscard]] Confinement supported();

/// Confines the process as far as the system offers it. To be called once, before there are other
/// threads and before the first byte of a stranger is read.
Confinement confine(const Permissions& permissions);

/// What confine() has achieved in this process.
[[nodiscard]] Confinement active();

/// What is in force in both.
[[nodiscard]] Confinement common(const Confinement& a, const Confinement& b);

/// "files", "network", "calls": stable names of what is in force.
[[nodiscard]] QStringList codesOf(const Confinement& confinement);
[[nodiscard]] Confinement confinementOf(const QStringList& codes);

/// User-visible: "files, network, system calls"; "none" if nothing is in force.
[[nodiscard]] QString describe(const Confinement& confinement);

} // namespace sandbox
