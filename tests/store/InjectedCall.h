#pragma once

#include <sqlite3.h>

namespace penwright::test {

/// Puts a routine in the place of a system call that SQLite makes, for as long as it lives.
class InjectedCall {
public:
    template <typename Routine>
    InjectedCall(const char *name, Routine *routine)
        : m_vfs(sqlite3_vfs_find(nullptr)), m_name(name), m_before(m_vfs->xGetSystemCall(m_vfs, name))
    {
        m_vfs->xSetSystemCall(m_vfs, name, reinterpret_cast<sqlite3_syscall_ptr>(routine));
    }
    InjectedCall(const InjectedCall &) = delete;
    InjectedCall &operator=(const InjectedCall &) = delete;
    ~InjectedCall() { m_vfs->xSetSystemCall(m_vfs, m_name, m_before); }

private:
    sqlite3_vfs *m_vfs;
    const char *m_name;
    sqlite3_syscall_ptr m_before;
};

}  // namespace penwright::test
