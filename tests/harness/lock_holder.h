// A second process that holds a data root's lock, for the tests of the one-editor-per-root rule.
#pragma once
#include <sys/types.h>

// Forks a process that takes the lock of the data root `root` (null: the current one) and holds
// it until it is killed. Gives its process id once it holds the lock, or -1 when it could not.
pid_t ForkLockHolder(const char *root);
