// An adoption that is killed at each of its calls of the system.
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

#include "store/adoption.h"
#include "support/files.h"
#include "support/old_tables.h"
#include "support/people.h"
#include "support/printing.h"
#include "support/program_directory.h"
#include "support/recording_host.h"

namespace {

enum class End { Killed, Finished, Impossible };

// Adopts in another process, which is killed behind its call of the system of that number.
End adoptAndKillAfter(int calls) {
    const pid_t process = fork();
    if (process == 0) {
        if (ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0)
            _exit(1);
        raise(SIGSTOP);
        adoptPeople();
        _exit(0);
    }
    int status = 0;
    waitpid(process, &status, 0);
    constexpr int kStops = 2;  // before a call and behind it
    for (int stop = 0; WIFSTOPPED(status) && stop < kStops * calls; ++stop) {
        ptrace(PTRACE_SYSCALL, process, nullptr, nullptr);
        waitpid(process, &status, 0);
    }
    if (WIFEXITED(status))
        return WEXITSTATUS(status) == 0 ? End::Finished : End::Impossible;
    kill(process, SIGKILL);
    waitpid(process, &status, 0);
    return End::Killed;
}

}  // namespace

TEST(AdoptionCrash, LeavesTheOldStateOrTheNewOneAndIsMadeGoodByTheNextStart) {
    const QByteArray old = oldDatabaseWithNoDate();
    int killedBefore = 0;
    int killedBehind = 0;
    RecordingHost host;
    const ProgramDirectory directory(host);
    for (int calls = 0;; ++calls) {
        for (const QString& file : filesIn(directory.path({})))
            QFile::remove(directory.path(file));
        makeFile(directory.people(), old);
        const End end = adoptAndKillAfter(calls);
        if (end == End::Impossible)
            GTEST_SKIP() << "No process can be followed here.";

        const bool isAdopted = fileBytes(directory.people()) != old;
        (isAdopted ? killedBehind : killedBefore) += 1;
        if (isAdopted) {
            ASSERT_EQ(fileBytes(directory.path(QStringLiteral("Ondara2 (Jet).mdb"))), old);
        }
        ASSERT_EQ(adoptPeople().has_value(), !isAdopted);
        ASSERT_EQ(valueOf(directory.people(), QStringLiteral("SELECT Name FROM Data")),
                  Value(QStringLiteral("Adler")));
        ASSERT_EQ(fileBytes(directory.path(QStringLiteral("Ondara2 (Jet).mdb"))), old);
        ASSERT_EQ(
            filesIn(directory.path({})),
            QStringList({QStringLiteral("Ondara2 (Jet).mdb"),
                         QStringLiteral("Ondara2 (left out).txt"), QStringLiteral("Ondara2.mdb")}))
            << calls;
        if (end == End::Finished)
            break;
    }
    EXPECT_GT(killedBefore, 100);
    EXPECT_GT(killedBehind, 5);
}
