// SPDX-License-Identifier: MIT
#include "fuzz/monkey/Confinement.h"

#include <QFile>

#ifdef __has_include
#if __has_include(<linux/landlock.h>)
#include <linux/landlock.h>
#define HAS_LANDLOCK
#endif
#endif

#ifdef HAS_LANDLOCK

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

constexpr __u64 everyChange =
    LANDLOCK_ACCESS_FS_WRITE_FILE | LANDLOCK_ACCESS_FS_REMOVE_DIR | LANDLOCK_ACCESS_FS_REMOVE_FILE |
    LANDLOCK_ACCESS_FS_MAKE_CHAR | LANDLOCK_ACCESS_FS_MAKE_DIR | LANDLOCK_ACCESS_FS_MAKE_REG |
    LANDLOCK_ACCESS_FS_MAKE_SOCK | LANDLOCK_ACCESS_FS_MAKE_FIFO | LANDLOCK_ACCESS_FS_MAKE_BLOCK |
    LANDLOCK_ACCESS_FS_MAKE_SYM | LANDLOCK_ACCESS_FS_REFER;

bool Allow(int rules, const QString& folder)
{
    const int place = open(QFile::encodeName(folder).constData(), O_PATH | O_CLOEXEC);
    landlock_path_beneath_attr beneath{};
    beneath.allowed_access = everyChange;
    beneath.parent_fd = place;
    const bool isAllowed = place >= 0 && syscall(SYS_landlock_add_rule, rules,
                                                 LANDLOCK_RULE_PATH_BENEATH, &beneath, 0) == 0;
    if (place >= 0)
        close(place);
    return isAllowed;
}

} // namespace

bool ConfineWritingTo(const QString& folder)
{
    landlock_ruleset_attr handled{};
    handled.handled_access_fs = everyChange;
    const int rules = int(syscall(SYS_landlock_create_ruleset, &handled, sizeof(handled), 0));
    if (rules < 0)
        return false;
    const bool isConfined = Allow(rules, folder) && Allow(rules, QStringLiteral("/dev")) &&
                            prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
                            syscall(SYS_landlock_restrict_self, rules, 0) == 0;
    close(rules);
    return isConfined;
}

#else

bool ConfineWritingTo(const QString&)
{
    return false;
}

#endif
