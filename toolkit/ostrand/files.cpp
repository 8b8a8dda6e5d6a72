// Files: whole-file loads, line reading, atomic saves and directory tests.
// A path is refused, never cut: one too long for FILE_PATH_SIZE fails the operation with a log
// line, so that no operation ever reaches another file than the one it was given.
#include <errno.h>
#include <fcntl.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "ostrand_internal.h"

#define READLINE_MAX (READ_LINE_SIZE - 1)  // the callers' line buffers are READ_LINE_SIZE bytes
#define TEMP_SUFFIX ".tmp"                 // the temporary file of a save is ".<name>.tmp" beside the target

static u32 last_load_size;
static char load_error[256];
static char save_error[256];

// Normalises `path` for a system call into `name` (FILE_PATH_SIZE bytes). False, with a log line
// naming the operation, when the path is too long; false quietly when it is null or empty.
static int SystemPath(char *name, const char *path, const char *operation)
{
    name[0] = 0;
    if (!path || !path[0])
        return 0;
    if (NormalisePath(name, path, FILE_PATH_SIZE))
        return 1;
    myprintf(0, "%s: the path is longer than %d characters and is refused: %.60s...", operation, FILE_PATH_SIZE - 1,
             path);
    name[0] = 0;
    return 0;
}

// --- Loading -------------------------------------------------------------------------------------
// The block holds one NUL byte behind the data, outside its recorded size, so FreeMem(data,
// GetLoadFileSize()) matches. A file that can't be read gives null and a level-3 log line.
void *LoadFile(const char *path)
{
    char name[FILE_PATH_SIZE];
    if (!SystemPath(name, path, "LoadFile"))
        return NULL;
    int fd = open(name, O_RDONLY | O_CLOEXEC);
    struct stat st;
    if (fd < 0 || fstat(fd, &st) != 0 || !S_ISREG(st.st_mode) || st.st_size > 0x7fffffff) {
        snprintf(load_error, sizeof(load_error), "%s",
                 fd < 0                ? strerror(errno)
                 : S_ISDIR(st.st_mode) ? "a folder stands there"
                 : S_ISREG(st.st_mode) ? "too large"
                                       : "not a file");
        myprintf(3, "LoadFile: can't read %s: %s", name, load_error);
        if (fd >= 0)
            close(fd);
        return NULL;
    }
    u32 size = (u32)st.st_size;
    char *data = (char *)AllocMemExtra(_OstrandBase->default_memory_type, size, 1);
    u32 done = 0;
    while (data && done < size) {
        ssize_t got = read(fd, data + done, size - done);
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0) {
            snprintf(load_error, sizeof(load_error), "%s", got < 0 ? strerror(errno) : "short");
            myprintf(3, "LoadFile: read of %s failed: %s", name, load_error);
            FreeMem(data, size);
            data = NULL;
        } else {
            done += (u32)got;
        }
    }
    close(fd);
    if (data)
        last_load_size = size;
    return data;
}

u32 GetLoadFileSize(void)
{
    return last_load_size;
}

const char *LoadFileError(void)
{
    return load_error;
}

// A line longer than the callers' buffers is cut at READLINE_MAX characters; the rest of it is
// consumed and dropped.
u32 ReadLine(char *line, const char *position, const char *end)
{
    line[0] = 0;
    if (!position || position >= end)
        return 0;
    const char *eol = (const char *)memchr(position, '\n', (size_t)(end - position));
    const char *text_end = eol ? eol : end;
    u32 consumed = (u32)(text_end - position) + (eol ? 1 : 0);
    if (eol && text_end > position && text_end[-1] == '\r')
        text_end--;
    size_t length = (size_t)(text_end - position);
    if (length > READLINE_MAX)
        length = READLINE_MAX;
    memcpy(line, position, length);
    line[length] = 0;
    return consumed;
}

// --- Saving --------------------------------------------------------------------------------------
static void SetSaveError(const char *reason)
{
    snprintf(save_error, sizeof(save_error), "%s", reason);
}

const char *SaveFileError(void)
{
    return save_error;
}

static int WriteAll(int fd, const char *data, u32 size)
{
    while (size > 0) {
        ssize_t put = write(fd, data, size);
        if (put < 0 && errno == EINTR)
            continue;
        if (put <= 0)
            return 0;
        data += put;
        size -= (u32)put;
    }
    return 1;
}

// Where a document may not be replaced: a file without any write permission (which root, too,
// is held to) or one this user can't write.
static int WriteProtected(const char *target, const struct stat *st)
{
    return !(st->st_mode & 0222) || (geteuid() != 0 && access(target, W_OK) != 0);
}

// The mode a new file gets from the user's mask, as open() would give it.
static mode_t OrdinaryMode(void)
{
    mode_t mask = umask(0);
    umask(mask);
    return 0666 & ~mask;
}

// Opens the temporary file `temp` for a save and holds its lock, so that two saves of one file
// never write it together. A file left by a save that was killed is taken over and emptied. If
// another save renamed the file into place between our open and our lock, the lock is on its
// target: the open is tried again. -1, with the reason set, when it can't be had.
static int OpenTemp(const char *temp, mode_t mode)
{
    for (int tries = 0; tries < 3; tries++) {
        int fd = open(temp, O_WRONLY | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
        if (fd < 0) {
            SetSaveError(strerror(errno));
            return -1;
        }
        if (flock(fd, LOCK_EX | LOCK_NB) != 0) {
            close(fd);
            SetSaveError("Another save of this file is under way");
            return -1;
        }
        struct stat held, named;
        if (fstat(fd, &held) == 0 && lstat(temp, &named) == 0 && held.st_ino == named.st_ino &&
            held.st_dev == named.st_dev) {
            if (ftruncate(fd, 0) == 0 && fchmod(fd, mode) == 0)
                return fd;
            SetSaveError(strerror(errno));
            close(fd);
            return -1;
        }
        close(fd);
    }
    SetSaveError("Another save of this file is under way");
    return -1;
}

// Hook for the tests: called between writing the temporary file and renaming it into place.
void (*save_pause_hook)(void);

// The temporary file is ".<name>.tmp" beside the target, one for each target whatever process
// saves it; on failure it is removed and the old file stays whole. With SAVE_KEEP_MODE (a
// document) the new file keeps the old one's mode and a write-protected file is not replaced;
// without it (a store) the new file gets the ordinary mode, whatever the broken one had.
int WriteFileAtomic(const char *path, const void *data, u32 size, u32 flags)
{
    char target[FILE_PATH_SIZE], directory[FILE_PATH_SIZE], temp[FILE_PATH_SIZE];
    if (!path || !path[0]) {
        SetSaveError("Invalid file name");
        return 0;
    }
    if (!SystemPath(target, path, "Save")) {
        SetSaveError("File name too long");
        return 0;
    }
    const char *slash = strrchr(target, '/');
    const char *name = slash ? slash + 1 : target;
    if (!name[0]) {
        SetSaveError("Is a directory");
        return 0;
    }
    if (!slash)
        strcpy(directory, ".");
    else if (slash == target)
        strcpy(directory, "/");
    else
        snprintf(directory, sizeof(directory), "%.*s", (int)(slash - target), target);
    if (snprintf(temp, sizeof(temp), "%s/.%s" TEMP_SUFFIX, directory, name) >= (int)sizeof(temp)) {
        SetSaveError("File name too long");
        return 0;
    }

    mode_t mode = OrdinaryMode();
    struct stat st;
    if (stat(target, &st) == 0) {
        if (S_ISDIR(st.st_mode)) {
            SetSaveError("Is a directory");
            return 0;
        }
        if (flags & SAVE_KEEP_MODE) {
            if (WriteProtected(target, &st)) {
                SetSaveError("The file is write-protected");
                return 0;
            }
            mode = st.st_mode & 07777;
        }
    }
    int fd = OpenTemp(temp, mode);
    if (fd < 0)
        return 0;
    int ok = WriteAll(fd, (const char *)data, size) && fsync(fd) == 0;
    int error = errno;
    if (ok && save_pause_hook)
        save_pause_hook();
    if (ok && rename(temp, target) != 0) {
        ok = 0;
        error = errno;
    }
    if (!ok)
        unlink(temp);
    close(fd);  // after the rename, so that the lock holds until the file is in place
    if (!ok) {
        SetSaveError(strerror(error));
        return 0;
    }
    int dir_fd = open(directory, O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (dir_fd >= 0) {
        fsync(dir_fd);
        close(dir_fd);
    }
    save_error[0] = 0;
    return 1;
}

int SaveFile(const char *path, const void *data, u32 size)
{
    if (WriteFileAtomic(path, data, size, 0))
        return 1;
    myprintf(0, "Could not save %s: %s", path ? path : "(null)", save_error);
    return 0;
}

// A folder where a store goes is moved out of the way, so that the good file takes its place: an
// empty one is removed, another is renamed "<store>.folder".
int SaveStoreFile(const char *path, const void *data, u32 size)
{
    char name[FILE_PATH_SIZE];
    if (SystemPath(name, path, "SaveStoreFile") && DirectoryExists(name) && rmdir(name) != 0) {
        char aside[FILE_PATH_SIZE + 8];
        snprintf(aside, sizeof(aside), "%s.folder", name);
        if (PathExists(aside) || rename(name, aside) != 0) {
            myprintf(0, "A folder stands where the store %s goes and can't be moved aside", name);
            return 0;
        }
        myprintf(0, "A folder stood where the store %s goes; it was moved to %s", name, aside);
    }
    return SaveFile(path, data, size);
}

// The text stream of InitSaveFile: the text gathers in memory and is written in one atomic save
// by FinishSaveFile, which the next InitSaveFile and the event loop's turns call too.
enum { STREAM_IDLE, STREAM_OPEN, STREAM_FAILED };

static struct {
    int state;
    char path[FILE_PATH_SIZE];
    char *text;
    u32 length, capacity;
} stream;

// The buffer stays for the next save, so that saving a large page again costs no fresh memory;
// one past STREAM_KEEP_MAX bytes goes.
#define STREAM_KEEP_MAX (64u << 20)

static void DropStream(void)
{
    if (stream.capacity > STREAM_KEEP_MAX) {
        free(stream.text);
        stream.text = NULL;
        stream.capacity = 0;
    }
    stream.length = 0;
    stream.state = STREAM_IDLE;
}

// Fails at once, with the reason kept for FinishSaveFile, when the path is too long, the
// directory isn't there or isn't writable, or the file is write-protected.
int InitSaveFile(const char *path)
{
    FinishSaveFile();
    save_error[0] = 0;
    stream.state = STREAM_OPEN;
    if (!path || !path[0] || !SystemPath(stream.path, path, "InitSaveFile")) {
        snprintf(stream.path, sizeof(stream.path), "%s", path ? path : "(null)");
        SetSaveError(path && path[0] ? "File name too long" : "Invalid file name");
        stream.state = STREAM_FAILED;
        return 0;
    }
    char directory[FILE_PATH_SIZE];
    strcpy(directory, stream.path);
    char *slash = strrchr(directory, '/');
    if (!slash)
        strcpy(directory, ".");
    else
        slash[slash == directory ? 1 : 0] = 0;
    struct stat st;
    if (access(directory, W_OK | X_OK) != 0) {
        SetSaveError(strerror(errno));
        stream.state = STREAM_FAILED;
        return 0;
    }
    if (stat(stream.path, &st) == 0 && S_ISREG(st.st_mode) && WriteProtected(stream.path, &st)) {
        SetSaveError("The file is write-protected");
        stream.state = STREAM_FAILED;
        return 0;
    }
    return 1;
}

void SavePrint(const char *text)
{
    if (stream.state != STREAM_OPEN || !text)
        return;
    u32 length = (u32)strlen(text);
    if (stream.length + length > stream.capacity) {
        u32 capacity = stream.capacity ? stream.capacity : 4096;
        while (capacity < stream.length + length)
            capacity *= 2;
        char *grown = (char *)realloc(stream.text, capacity);
        if (!grown) {
            SetSaveError("Out of memory");
            stream.state = STREAM_FAILED;
            return;
        }
        stream.text = grown;
        stream.capacity = capacity;
    }
    memcpy(stream.text + stream.length, text, length);
    stream.length += length;
}

// Nothing pending: true at once. A failure is logged once, naming the file and the reason.
int FinishSaveFile(void)
{
    if (stream.state == STREAM_IDLE)
        return 1;
    int ok = stream.state == STREAM_OPEN && WriteFileAtomic(stream.path, stream.text, stream.length, SAVE_KEEP_MODE);
    if (!ok)
        myprintf(0, "Could not save %s: %s", stream.path, save_error);
    DropStream();
    return ok;
}

// --- Directories ---------------------------------------------------------------------------------
static int StatKind(const char *path, mode_t kind)
{
    char name[FILE_PATH_SIZE];
    struct stat st;
    if (!SystemPath(name, path, "FileExists"))
        return 0;
    return stat(name, &st) == 0 && (st.st_mode & S_IFMT) == kind;
}

int FileExists(const char *path)
{
    return StatKind(path, S_IFREG);
}

int DirectoryExists(const char *path)
{
    return StatKind(path, S_IFDIR);
}

int PathExists(const char *path)
{
    char name[FILE_PATH_SIZE];
    struct stat st;
    return SystemPath(name, path, "PathExists") && lstat(name, &st) == 0;
}

int MakeEntireDirectory(const char *path)
{
    char name[FILE_PATH_SIZE];
    if (!SystemPath(name, path, "MakeEntireDirectory"))
        return 0;
    for (char *c = name + 1; *c; c++) {
        if (*c != '/')
            continue;
        *c = 0;
        mkdir(name, 0777);
        *c = '/';
    }
    int error = mkdir(name, 0777) == 0 ? 0 : errno;
    if (!DirectoryExists(name)) {
        myprintf(0, "Could not make the directory %s: %s", name, strerror(error ? error : ENOTDIR));
        return 0;
    }
    return 1;
}
