// Files: whole-file loads, line reading, atomic saves and directory tests.
#include <errno.h>
#include <fcntl.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>
#include <unistd.h>

#include "ostrand_internal.h"

#define READLINE_MAX 1023  // the callers' line buffers are 1024 bytes

static u32 last_load_size;
static char save_error[256];

// --- Loading -------------------------------------------------------------------------------------
// The block holds one NUL byte behind the data, outside its recorded size, so FreeMem(data,
// GetLoadFileSize()) matches. A file that can't be read gives null and a level-3 log line.
void *LoadFile(const char *path) {
    char name[1024];
    NormalisePath(name, path, sizeof(name));
    int fd = open(name, O_RDONLY | O_CLOEXEC);
    struct stat st;
    if (fd < 0 || fstat(fd, &st) != 0 || !S_ISREG(st.st_mode) || st.st_size > 0x7fffffff) {
        myprintf(3, "LoadFile: can't read %s: %s", name, fd < 0 ? strerror(errno) : "not a file");
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
            myprintf(3, "LoadFile: read of %s failed: %s", name,
                     got < 0 ? strerror(errno) : "short");
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

u32 GetLoadFileSize(void) {
    return last_load_size;
}

// A line longer than the callers' buffers is cut at READLINE_MAX characters; the rest of it is
// consumed and dropped.
u32 ReadLine(char *line, const char *position, const char *end) {
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
static void SetSaveError(const char *reason) {
    snprintf(save_error, sizeof(save_error), "%s", reason);
}

const char *SaveFileError(void) {
    return save_error;
}

static int WriteAll(int fd, const char *data, u32 size) {
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

// The temporary file is ".<name>.tmp-<pid>" beside the target; on failure it is removed and the
// old file stays whole.
int WriteFileAtomic(const char *path, const void *data, u32 size) {
    char target[1024], directory[1024], temp[sizeof(target) + sizeof(directory) + 32];
    if (!path || !path[0] || !NormalisePath(target, path, sizeof(target))) {
        SetSaveError("Invalid file name");
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
    snprintf(temp, sizeof(temp), "%s/.%s.tmp-%d", directory, name, (int)getpid());

    mode_t mode = 0666;
    struct stat st;
    if (stat(target, &st) == 0) {
        if (S_ISDIR(st.st_mode)) {
            SetSaveError("Is a directory");
            return 0;
        }
        mode = st.st_mode & 07777;
    }
    int fd = open(temp, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, mode);
    if (fd < 0) {
        SetSaveError(strerror(errno));
        return 0;
    }
    int ok = WriteAll(fd, (const char *)data, size) && fsync(fd) == 0;
    int error = errno;
    if (close(fd) != 0 && ok) {
        ok = 0;
        error = errno;
    }
    if (ok && rename(temp, target) != 0) {
        ok = 0;
        error = errno;
    }
    if (!ok) {
        unlink(temp);
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

int SaveFile(const char *path, const void *data, u32 size) {
    if (WriteFileAtomic(path, data, size))
        return 1;
    myprintf(0, "Could not save %s: %s", path ? path : "(null)", save_error);
    return 0;
}

// The text stream of InitSaveFile: the text gathers in memory and is written in one atomic save
// by FinishSaveFile, which the next InitSaveFile and the event loop's turns call too.
enum { STREAM_IDLE, STREAM_OPEN, STREAM_FAILED };

static struct {
    int state;
    char path[1024];
    char *text;
    u32 length, capacity;
} stream;

// The buffer stays for the next save, so that saving a large page again costs no fresh memory;
// one past STREAM_KEEP_MAX bytes goes.
#define STREAM_KEEP_MAX (64u << 20)

static void DropStream(void) {
    if (stream.capacity > STREAM_KEEP_MAX) {
        free(stream.text);
        stream.text = NULL;
        stream.capacity = 0;
    }
    stream.length = 0;
    stream.state = STREAM_IDLE;
}

// Fails at once, with the reason kept for FinishSaveFile, when the directory isn't there or
// isn't writable.
int InitSaveFile(const char *path) {
    FinishSaveFile();
    save_error[0] = 0;
    stream.state = STREAM_OPEN;
    if (!path || !path[0] || !NormalisePath(stream.path, path, sizeof(stream.path))) {
        snprintf(stream.path, sizeof(stream.path), "%s", path ? path : "(null)");
        SetSaveError("Invalid file name");
        stream.state = STREAM_FAILED;
        return 0;
    }
    char directory[1024];
    strcpy(directory, stream.path);
    char *slash = strrchr(directory, '/');
    if (!slash)
        strcpy(directory, ".");
    else
        slash[slash == directory ? 1 : 0] = 0;
    if (access(directory, W_OK | X_OK) != 0) {
        SetSaveError(strerror(errno));
        stream.state = STREAM_FAILED;
        return 0;
    }
    return 1;
}

void SavePrint(const char *text) {
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
int FinishSaveFile(void) {
    if (stream.state == STREAM_IDLE)
        return 1;
    int ok = stream.state == STREAM_OPEN &&
             WriteFileAtomic(stream.path, stream.text, stream.length);
    if (!ok)
        myprintf(0, "Could not save %s: %s", stream.path, save_error);
    DropStream();
    return ok;
}

// --- Directories ---------------------------------------------------------------------------------
static int StatKind(const char *path, mode_t kind) {
    char name[1024];
    struct stat st;
    if (!path || !path[0])
        return 0;
    NormalisePath(name, path, sizeof(name));
    return stat(name, &st) == 0 && (st.st_mode & S_IFMT) == kind;
}

int FileExists(const char *path) {
    return StatKind(path, S_IFREG);
}

int DirectoryExists(const char *path) {
    return StatKind(path, S_IFDIR);
}

int MakeEntireDirectory(const char *path) {
    char name[1024];
    if (!path || !path[0] || !NormalisePath(name, path, sizeof(name)))
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
