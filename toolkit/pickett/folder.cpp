// Folders as the selectors see them: wildcard patterns, a folder read into sorted entries, the
// nearest existing folder, the way up, and a typed name split into folder and name.
#include <dirent.h>
#include <errno.h>
#include <stdio.h>
#include <string.h>
#include <strings.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <string>
#include <vector>

#include "lumora/lumora_internal.h"
#include "pickett/pickett_internal.h"

// --- Patterns ------------------------------------------------------------------------------------

static int Lower(char c)
{
    return (c >= 'A' && c <= 'Z') ? c - 'A' + 'a' : (u8)c;
}

// One alternative, `length` characters of `pattern`, against the whole name.
static int MatchOne(const char *pattern, u32 length, const char *name)
{
    if (length == 3 && strncmp(pattern, "*.*", 3) == 0)
        return 1;
    const char *star_p = NULL, *star_n = NULL;
    const char *p = pattern, *end = pattern + length;
    while (*name) {
        if (p < end && (*p == '?' || Lower(*p) == Lower(*name))) {
            p++, name++;
        } else if (p < end && *p == '*') {
            star_p = ++p, star_n = name;
        } else if (star_p) {  // let the last '*' take one more character
            p = star_p, name = ++star_n;
        } else {
            return 0;
        }
    }
    while (p < end && *p == '*')
        p++;
    return p == end;
}

int MatchPattern(const char *pattern, const char *name)
{
    if (!pattern || !pattern[0])
        return 1;
    for (const char *at = pattern;;) {
        const char *semi = strchr(at, ';');
        u32 length = semi ? (u32)(semi - at) : (u32)strlen(at);
        if (length && MatchOne(at, length, name))
            return 1;
        if (!semi)
            return 0;
        at = semi + 1;
    }
}

// --- Reading a folder ----------------------------------------------------------------------------

static bool ByNameWithoutCase(const std::string &a, const std::string &b)
{
    int c = strcasecmp(a.c_str(), b.c_str());
    return c ? c < 0 : a < b;
}

static void AddEntry(t_List *entries, const char *name, u16 is_folder, u16 from)
{
    T_FOLDER_ENTRY *e = (T_FOLDER_ENTRY *)NewTail(entries, sizeof(T_FOLDER_ENTRY), name);
    if (!e)
        return;
    e->is_folder = is_folder;
    e->from = from;
}

int ReadFolder(t_List *entries, const char *folder, const char *pattern, u32 flags, u16 from)
{
    DIR *dir = opendir(folder && folder[0] ? folder : "/");
    if (!dir) {
        myprintf(0, "The folder %s can't be read: %s\n", folder ? folder : "", strerror(errno));
        return 0;
    }
    std::vector<std::string> folders, files;
    char path[PICKETT_PATH_SIZE];
    for (struct dirent *d; (d = readdir(dir));) {
        if (strcmp(d->d_name, ".") == 0 || strcmp(d->d_name, "..") == 0)
            continue;
        struct stat st;
        JoinPath(path, sizeof path, folder, d->d_name);
        int is_folder = stat(path, &st) == 0 && S_ISDIR(st.st_mode);
        if (is_folder)
            folders.push_back(d->d_name);
        else if (MatchPattern(pattern, d->d_name))
            files.push_back(d->d_name);
    }
    closedir(dir);
    std::sort(folders.begin(), folders.end(), ByNameWithoutCase);
    std::sort(files.begin(), files.end(), ByNameWithoutCase);
    if (!(flags & FOLDER_FILES_ONLY)) {
        if (strcmp(folder, "/") != 0)
            AddEntry(entries, "..", 1, from);
        for (const std::string &name : folders)
            AddEntry(entries, name.c_str(), 1, from);
    }
    for (const std::string &name : files)
        AddEntry(entries, name.c_str(), 0, from);
    return 1;
}

void FreeFolderEntries(t_List *entries)
{
    EmptyList(entries, sizeof(T_FOLDER_ENTRY));
}

T_FOLDER_ENTRY *FindFolderEntry(t_List *entries, const char *name, u16 from)
{
    for (T_FOLDER_ENTRY *e = (T_FOLDER_ENTRY *)entries->first; e->next; e = e->next)
        if (e->from == from && strcmp(e->name, name) == 0)
            return e;
    return NULL;
}

// --- Paths ---------------------------------------------------------------------------------------

// Copies with '\\' as '/', without trailing separators (but "/" stays).
static void CleanPath(char *dest, u32 size, const char *path)
{
    u32 n = 0;
    for (; path && path[n] && n + 1 < size; n++)
        dest[n] = path[n] == '\\' ? '/' : path[n];
    dest[n] = 0;
    while (n > 1 && dest[n - 1] == '/')
        dest[--n] = 0;
}

char *JoinPath(char *dest, u32 size, const char *folder, const char *name)
{
    u32 length = folder ? (u32)strlen(folder) : 0;
    const char *separator = length && folder[length - 1] == '/' ? "" : "/";
    snprintf(dest, size, "%s%s%s", folder ? folder : "", length ? separator : "", name ? name : "");
    return dest;
}

char *ParentFolder(char *dest, u32 size, const char *folder)
{
    char clean[PICKETT_PATH_SIZE];
    CleanPath(clean, sizeof clean, folder);
    char *slash = strrchr(clean, '/');
    if (!slash)
        snprintf(dest, size, "/");
    else {
        slash[slash == clean ? 1 : 0] = 0;
        snprintf(dest, size, "%s", clean);
    }
    return dest;
}

char *NearestFolder(char *dest, u32 size, const char *path)
{
    char at[PICKETT_PATH_SIZE], cwd[PICKETT_PATH_SIZE];
    if (path && path[0] && (path[0] == '/' || path[0] == '\\'))
        CleanPath(at, sizeof at, path);
    else {
        if (!getcwd(cwd, sizeof cwd))
            snprintf(cwd, sizeof cwd, "/");
        char joined[PICKETT_PATH_SIZE];
        JoinPath(joined, sizeof joined, cwd, path && path[0] ? path : "");
        CleanPath(at, sizeof at, joined);
    }
    while (strcmp(at, "/") != 0 && !DirectoryExists(at)) {
        char up[PICKETT_PATH_SIZE];
        ParentFolder(up, sizeof up, at);
        memcpy(at, up, sizeof at);
    }
    snprintf(dest, size, "%s", at);
    return dest;
}

int SplitTypedName(T_FILE_REQUESTER_ANSWER *answer, const char *folder, const char *typed)
{
    char path[PICKETT_PATH_SIZE];
    if (!typed || !typed[0])
        return 0;
    u32 length = (u32)strlen(typed);
    if (typed[length - 1] == '/' || typed[length - 1] == '\\')
        return 0;
    if (typed[0] == '/' || typed[0] == '\\')
        CleanPath(path, sizeof path, typed);
    else {
        char joined[PICKETT_PATH_SIZE];
        JoinPath(joined, sizeof joined, folder, typed);
        CleanPath(path, sizeof path, joined);
    }
    const char *slash = strrchr(path, '/');
    const char *name = slash ? slash + 1 : path;
    size_t name_length = strlen(name);
    if (name_length >= sizeof answer->name) {
        myprintf(0, "The name %s is too long for a file name\n", name);
        return 0;
    }
    memcpy(answer->name, name, name_length + 1);
    if (!slash)
        snprintf(answer->directory, sizeof answer->directory, "%s", folder ? folder : "");
    else if (slash == path)
        snprintf(answer->directory, sizeof answer->directory, "/");
    else
        snprintf(answer->directory, sizeof answer->directory, "%.*s", (int)(slash - path), path);
    return 1;
}
