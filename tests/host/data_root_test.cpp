// One editor for each data root: a second quillform on a root in use says so in one line, naming
// the root and the process that holds it, and exits with 2; once that process is gone, however it
// went, the root is free again.
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>
#include <sstream>
#include <string>

#include "tests/harness/harness.h"
#include "tests/harness/lock_holder.h"

namespace
{

struct RUN {
    int status;
    std::string error;
};

// Runs quillform headless on `root` with a script that does nothing.
RUN RunQuillform(const std::string &root)
{
    std::string script = root + "/script.txt", error = root + "/stderr.txt";
    std::ofstream(script) << "turns 1\n";
    std::string command = std::string("'") + QF_BINARY_DIR + "/quillform' --headless --home '" + root + "' --script '" +
                          script + "' 2>'" + error + "' >/dev/null";
    int status = system(command.c_str());
    std::ifstream in(error);
    std::ostringstream text;
    text << in.rdbuf();
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, text.str()};
}

TEST(DataRoot, ASecondEditorOnARootInUseSaysWhoHoldsItAndExits)
{
    char root[512];
    ASSERT_TRUE(MakeTempRoot(root, sizeof(root)));
    pid_t holder = ForkLockHolder(root);  // the first editor, as far as the lock goes
    ASSERT_GT(holder, 0);

    RUN second = RunQuillform(root);
    EXPECT_EQ(second.status, 2);
    EXPECT_EQ(second.error, "quillform: the data root " + std::string(root) + " is in use by process " +
                                std::to_string(holder) + "\n");

    kill(holder, SIGKILL);  // no orderly end: the lock goes with the process all the same
    waitpid(holder, NULL, 0);
    RUN after = RunQuillform(root);
    EXPECT_EQ(after.status, 0) << after.error;
    RemoveTree(root);
}

}  // namespace
