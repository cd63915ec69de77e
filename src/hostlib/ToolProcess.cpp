#include "hostlib/ToolProcess.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <system_error>

namespace penwright {

namespace {

/// How the child starts: nothing to read, and no signal blocked or ignored because the host happens to do so.
class SpawnSetup {
public:
    SpawnSetup()
    {
        posix_spawn_file_actions_init(&m_files);
        posix_spawn_file_actions_addopen(&m_files, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        posix_spawnattr_init(&m_attributes);
        posix_spawnattr_setflags(&m_attributes, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
        sigset_t none;
        sigemptyset(&none);
        posix_spawnattr_setsigmask(&m_attributes, &none);
        sigset_t standard;
        sigemptyset(&standard);
        for (const int number : {SIGTERM, SIGPIPE, SIGCHLD})
            sigaddset(&standard, number);
        posix_spawnattr_setsigdefault(&m_attributes, &standard);
    }
    SpawnSetup(const SpawnSetup &) = delete;
    SpawnSetup &operator=(const SpawnSetup &) = delete;
    ~SpawnSetup()
    {
        posix_spawnattr_destroy(&m_attributes);
        posix_spawn_file_actions_destroy(&m_files);
    }

    const posix_spawn_file_actions_t *files() const { return &m_files; }
    const posix_spawnattr_t *attributes() const { return &m_attributes; }

private:
    posix_spawn_file_actions_t m_files;
    posix_spawnattr_t m_attributes;
};

}  // namespace

ToolProcess::~ToolProcess()
{
    killAndWait();
}

void ToolProcess::start(const std::string &program, const std::string &argument)
{
    const SpawnSetup setup;
    char *const words[] = {const_cast<char *>(program.c_str()), const_cast<char *>(argument.c_str()), nullptr};
    const int failure = posix_spawnp(&m_id, program.c_str(), setup.files(), setup.attributes(), words, environ);
    if (failure != 0) {
        m_id = -1;
        throw std::system_error(failure, std::generic_category(), program);
    }
}

bool ToolProcess::hasEnded()
{
    if (!isRunning())
        return m_hasEnded;
    int status = 0;
    const pid_t seen = waitpid(m_id, &status, WNOHANG);
    // A host that collects all of its children may have collected this one; how it ended is then not known.
    m_hasEnded = seen == m_id || (seen < 0 && errno == ECHILD);
    if (seen == m_id && WIFEXITED(status))
        m_exitStatus = WEXITSTATUS(status);
    return m_hasEnded;
}

void ToolProcess::kill()
{
    if (isRunning())
        ::kill(m_id, SIGKILL);
}

void ToolProcess::killAndWait()
{
    if (!isRunning())
        return;
    kill();
    while (waitpid(m_id, nullptr, 0) < 0 && errno == EINTR) {
    }
    m_hasEnded = true;
}

}  // namespace penwright
