#include "sandbox/file_rules.h"

#include "console/file_name.h"

#include <linux/landlock.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace sandbox {
using namespace Qt::StringLiterals;
namespace {

// The kernel headers of the oldest supported system end with version 2.
constexpr quint64 Truncate = 1ULL << 14;      // version 3
constexpr quint64 DeviceControl = 1ULL << 15; // version 5
constexpr quint64 BindAndConnect = 0b11;      // version 4
constexpr quint64 SocketsAndSignals = 0b11;   // version 6

constexpr quint64 FirstVersion = (LANDLOCK_ACCESS_FS_MAKE_SYM << 1) - 1;

struct RulesetAttribute
{
    quint64 files = 0;
    quint64 network = 0;
    quint64 scoped = 0;
};

constexpr quint64 ReadFile = LANDLOCK_ACCESS_FS_READ_FILE;
constexpr quint64 ReadFolder = ReadFile | LANDLOCK_ACCESS_FS_READ_DIR;
constexpr quint64 WriteFolder = ReadFolder | LANDLOCK_ACCESS_FS_WRITE_FILE |
                                LANDLOCK_ACCESS_FS_MAKE_REG | LANDLOCK_ACCESS_FS_REMOVE_FILE |
                                Truncate;
constexpr quint64 WriteDevice = ReadFile | LANDLOCK_ACCESS_FS_WRITE_FILE;

/// Everything that the version can refuse, so that all of it is refused without a rule.
RulesetAttribute everythingOf(int version)
{
    RulesetAttribute attribute;
    attribute.files = FirstVersion;
    attribute.files |= version >= 2 ? LANDLOCK_ACCESS_FS_REFER : 0;
    attribute.files |= version >= 3 ? Truncate : 0;
    attribute.files |= version >= 5 ? DeviceControl : 0;
    attribute.network = version >= FirstVersionWithNetwork ? BindAndConnect : 0;
    attribute.scoped = version >= 6 ? SocketsAndSignals : 0;
    return attribute;
}

class Ruleset
{
public:
    explicit Ruleset(const RulesetAttribute& attribute)
        : m_files(attribute.files)
        , m_descriptor(static_cast<int>(
              ::syscall(SYS_landlock_create_ruleset, &attribute, sizeof attribute, 0)))
    {}

    ~Ruleset()
    {
        if (m_descriptor >= 0) {
            ::close(m_descriptor);
        }
    }
    Ruleset(const Ruleset&) = delete;
    Ruleset& operator=(const Ruleset&) = delete;

    [[nodiscard]] bool isValid() const { return m_descriptor >= 0; }

    void allow(const QString& path, quint64 ofFolder, quint64 ofFile) const
    {
        const int place = ::open(console::fileNameToBytes(path).constData(), O_PATH | O_CLOEXEC);
        struct stat status = {};
        if (place >= 0 && ::fstat(place, &status) == 0) {
            landlock_path_beneath_attr rule{};
            rule.allowed_access = m_files & (S_ISDIR(status.st_mode) ? ofFolder : ofFile);
            rule.parent_fd = place;
            // A place without a rule can only be refused, so a failure does no harm.
            ::syscall(SYS_landlock_add_rule, m_descriptor, LANDLOCK_RULE_PATH_BENEATH, &rule, 0);
        }
        if (place >= 0) {
            ::close(place);
        }
    }

    [[nodiscard]] bool enforce() const
    {
        return ::syscall(SYS_landlock_restrict_self, m_descriptor, 0) == 0;
    }

private:
    quint64 m_files;
    int m_descriptor;
};

} // namespace

int fileRulesVersion()
{
    const auto version = static_cast<int>(
        ::syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION));
    return version > 0 ? version : 0;
}

int applyFileRules(const QStringList& readable, const QStringList& writable)
{
    const int version = fileRulesVersion();
    if (version == 0) {
        return 0;
    }
    const Ruleset rules(everythingOf(version));
    if (!rules.isValid()) {
        return 0;
    }
    for (const QString& path : readable) {
        rules.allow(path, ReadFolder, ReadFile);
    }
    for (const QString& path : writable) {
        rules.allow(path, WriteFolder, 0);
    }
    rules.allow(u"/dev/null"_s, 0, WriteDevice);
    return rules.enforce() ? version : 0;
}

} // namespace sandbox
