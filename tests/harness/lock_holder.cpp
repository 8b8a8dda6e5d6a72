// A second process that holds a data root's lock until it is killed.
#include "tests/harness/lock_holder.h"

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include "toolkit.h"

pid_t ForkLockHolder(const char *root)
{
    int ready[2];
    if (pipe(ready) != 0)
        return -1;
    pid_t holder = fork();
    if (holder == 0) {  // the holder tells whether it took the lock, then waits to be killed
        u32 other;
        char taken = (!root || SetDataRoot(root)) && LockDataRoot(&other) == 1 ? 'y' : 'n';
        if (write(ready[1], &taken, 1) != 1)
            _exit(1);
        pause();
        _exit(0);
    }
    char taken = 0;
    if (holder > 0 && (read(ready[0], &taken, 1) != 1 || taken != 'y')) {
        kill(holder, SIGKILL);
        waitpid(holder, NULL, 0);
        holder = -1;
    }
    close(ready[0]);
    close(ready[1]);
    return holder;
}
