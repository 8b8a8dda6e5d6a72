// Paths: the parts of a path, joining, and the data root below which the toolkit keeps its stores,
// with the lock that keeps it to one process. Paths are POSIX; a '\\' in a name given by the
// program counts as a separator. A path too long for the callers' buffers is refused, never cut.
#include <errno.h>
#include <fcntl.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <unistd.h>

#include "ostrand_internal.h"

// The caller's buffers of the path operations hold at least this many bytes.
#define PATH_BUFFER_SIZE FILE_PATH_SIZE
#define LOCK_FILE "lock"  // in the data root

int NormalisePath(char *dest, const char *path, u32 dest_size)
{
    u32 i = 0;
    for (; path && path[i] && i + 1 < dest_size; i++)
        dest[i] = path[i] == '\\' ? '/' : path[i];
    dest[i] = 0;
    return !path || !path[i];
}

// Copies into a path buffer of the caller; a path too long for it leaves the buffer empty and
// gives false, with a log line.
static int CopyPath(char *dest, const char *path)
{
    if (NormalisePath(dest, path, PATH_BUFFER_SIZE))
        return 1;
    myprintf(0, "Path longer than %d characters, refused: %.60s...", PATH_BUFFER_SIZE - 1, path);
    dest[0] = 0;
    return 0;
}

// The file-name part of a normalised path.
static const char *NamePart(const char *path)
{
    const char *slash = strrchr(path, '/');
    return slash ? slash + 1 : path;
}

// The extension's '.', or null: a '.' that opens the name (".profile") is no extension.
static char *ExtensionDot(char *name)
{
    char *dot = strrchr(name, '.');
    return dot && dot != name ? dot : NULL;
}

// "/a/b/c.cpp" gives "/a/b", "/c.cpp" gives "/", and a bare name gives "".
char *XGetPath(char *dest, const char *path)
{
    char buffer[PATH_BUFFER_SIZE];
    if (!CopyPath(buffer, path)) {
        dest[0] = 0;
        return NULL;
    }
    char *slash = strrchr(buffer, '/');
    if (!slash)
        buffer[0] = 0;
    else
        slash[slash == buffer ? 1 : 0] = 0;
    strcpy(dest, buffer);
    return dest;
}

char *StripPath(char *dest, const char *path)
{
    char buffer[PATH_BUFFER_SIZE];
    if (!CopyPath(buffer, path)) {
        dest[0] = 0;
        return NULL;
    }
    memmove(dest, NamePart(buffer), strlen(NamePart(buffer)) + 1);
    return dest;
}

char *StripPathAndExt(char *dest, const char *path)
{
    if (!StripPath(dest, path))
        return NULL;
    char *dot = ExtensionDot(dest);
    if (dot)
        *dot = 0;
    return dest;
}

// An empty path stays empty, so that directory + separator + name of a bare name is the bare
// name again (XGetPath of "Page.cpp" is "").
char *AddBackSlashToPath(char *path)
{
    size_t length = strlen(path);
    for (size_t i = 0; i < length; i++)
        if (path[i] == '\\')
            path[i] = '/';
    if (length > 0 && path[length - 1] != '/' && length + 1 < PATH_BUFFER_SIZE) {
        path[length] = '/';
        path[length + 1] = 0;
    }
    return path;
}

int ExtensionExists(const char *path)
{
    char buffer[PATH_BUFFER_SIZE];
    if (!CopyPath(buffer, path))
        return 0;
    return ExtensionDot((char *)NamePart(buffer)) != NULL;
}

char *MakeFilename(char *dest, const char *directory, const char *name)
{
    char buffer[PATH_BUFFER_SIZE * 2];
    int whole = NormalisePath(buffer, directory, sizeof(buffer));
    size_t length = strlen(buffer);
    if (length > 0 && buffer[length - 1] != '/')
        buffer[length++] = '/';
    whole = NormalisePath(buffer + length, name ? name : "", (u32)(sizeof(buffer) - length)) && whole;
    if (!whole || !CopyPath(dest, buffer)) {
        if (whole == 0)
            myprintf(0, "Path longer than %d characters, refused: %.60s...", PATH_BUFFER_SIZE - 1,
                     directory ? directory : "");
        dest[0] = 0;
        return NULL;
    }
    return dest;
}

int IsAbsolutePath(const char *path)
{
    if (!path || !path[0])
        return 0;
    if (path[0] == '/')
        return 1;
    return path[1] == ':' && (path[2] == '\\' || path[2] == '/');
}

// A root that can't be made or written leaves the old one in place.
int SetDataRoot(const char *path)
{
    char root[sizeof(_OstrandBase->data_root)];
    if (!path || !path[0] || !NormalisePath(root, path, sizeof(root))) {
        myprintf(0, "Data root not usable (empty or too long): %s", path ? path : "(null)");
        return 0;
    }
    size_t length = strlen(root);
    while (length > 1 && root[length - 1] == '/')
        root[--length] = 0;
    if (!MakeEntireDirectory(root) || access(root, W_OK | X_OK) != 0) {
        myprintf(0, "Data root %s can't be made or written", root);
        return 0;
    }
    strcpy(_OstrandBase->data_root, root);
    return 1;
}

// By default $XDG_DATA_HOME/quillform, else ~/.local/share/quillform.
const char *DataRoot(void)
{
    if (!_OstrandBase->data_root[0]) {
        char root[sizeof(_OstrandBase->data_root)];
        const char *xdg = getenv("XDG_DATA_HOME");
        const char *home = getenv("HOME");
        if (xdg && xdg[0] == '/')
            snprintf(root, sizeof(root), "%s/quillform", xdg);
        else
            snprintf(root, sizeof(root), "%s/.local/share/quillform", home && home[0] ? home : "/tmp");
        if (!SetDataRoot(root))
            strcpy(_OstrandBase->data_root, root);
    }
    return _OstrandBase->data_root;
}

// The lock is a record lock on the whole file: the system drops it when the process ends, and
// F_GETLK tells who holds it. The file itself stays; only the lock says that the root is in use.
int LockDataRoot(u32 *holder)
{
    static int lock_fd = -1;
    static char locked_root[sizeof(_OstrandBase->data_root)];
    *holder = 0;
    const char *root = DataRoot();
    if (lock_fd >= 0 && strcmp(locked_root, root) == 0)
        return 1;
    char path[sizeof(_OstrandBase->data_root) + sizeof(LOCK_FILE) + 1];
    snprintf(path, sizeof(path), "%s/" LOCK_FILE, root);
    int fd = open(path, O_RDWR | O_CREAT | O_CLOEXEC, 0644);
    if (fd < 0) {
        myprintf(0, "The lock %s can't be made: %s", path, strerror(errno));
        return -1;
    }
    struct flock lock = {};
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    if (fcntl(fd, F_SETLK, &lock) != 0) {
        int error = errno;
        if (error != EACCES && error != EAGAIN) {
            myprintf(0, "The lock %s can't be taken: %s", path, strerror(error));
            close(fd);
            return -1;
        }
        struct flock held = {};
        held.l_type = F_WRLCK;
        held.l_whence = SEEK_SET;
        if (fcntl(fd, F_GETLK, &held) == 0 && held.l_type != F_UNLCK)
            *holder = (u32)held.l_pid;
        close(fd);
        return 0;
    }
    // The holder's number is written for a person who looks; the lock alone decides.
    char pid[24];
    int length = snprintf(pid, sizeof(pid), "%d\n", (int)getpid());
    if (ftruncate(fd, 0) != 0 || write(fd, pid, (size_t)length) != length)
        myprintf(3, "The lock %s holds no process number", path);
    if (lock_fd >= 0)
        close(lock_fd);
    lock_fd = fd;
    snprintf(locked_root, sizeof(locked_root), "%s", root);
    return 1;
}

char *MakePathFromSystem(const char *relative)
{
    static char path[sizeof(_OstrandBase->data_root) + PATH_BUFFER_SIZE];
    const char *root = DataRoot();
    size_t length = strlen(root);
    memcpy(path, root, length);
    if (relative && relative[0]) {
        path[length++] = '/';
        NormalisePath(path + length, relative, (u32)(sizeof(path) - length));
    } else {
        path[length] = 0;
    }
    return path;
}
