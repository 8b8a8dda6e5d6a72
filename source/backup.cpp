// BackupDocument: where the copy of a page file goes, by the settings' backup path, and the copy.
#include <stdio.h>
#include <string.h>

#include "page/records.h"
#include "source/backup.h"
#include "source/source_format.h"

// What the backup path is when the module has no settings block: the default of a new one.
static const char default_backup_path[] = "Backup";

static char backup_failure[SRC_PATH_SIZE + 128];

const char *BackupFailure(void)
{
    return backup_failure;
}

// Appends `text` to the path in `dest` (a buffer of SRC_PATH_SIZE bytes). False, with `dest`
// unchanged, when the result would not fit.
static int AppendToPath(char *dest, const char *text)
{
    size_t used = strlen(dest), added = strlen(text);
    if (used + added >= SRC_PATH_SIZE)
        return 0;
    memcpy(dest + used, text, added + 1);
    return 1;
}

// The separator as AddBackSlashToPath adds it, refused when it would not fit.
static int AddSeparator(char *path)
{
    if (strlen(path) + 1 >= SRC_PATH_SIZE)
        return 0;
    AddBackSlashToPath(path);
    return 1;
}

int BackupDocument(const char *path)
{
    const char *backup_path = editor_config ? editor_config->backup_path : default_backup_path;
    backup_failure[0] = 0;
    if (strlen(path) >= SRC_PATH_SIZE || strlen(backup_path) >= SRC_PATH_SIZE) {
        myprintf(0, "No backup of %s: the path is longer than %d characters\n", path, SRC_PATH_SIZE - 1);
        return 0;
    }

    char target[SRC_PATH_SIZE];
    char file_name[SRC_PATH_SIZE];
    XGetPath(target, path);
    int fits = AddSeparator(target);
    StripPath(file_name, path);

    if (!backup_path[0]) {
        // Beside the document, its extension replaced.
        StripPathAndExt(file_name, path);
        fits = fits && AppendToPath(file_name, SRC_BACKUP_EXTENSION) && AppendToPath(target, file_name);
    } else {
        // In the backup directory, under the document's full name.
        if (IsAbsolutePath(backup_path))
            strcpy(target, backup_path);
        else
            fits = fits && AppendToPath(target, backup_path);
        if (fits && !DirectoryExists(target))
            MakeEntireDirectory(target);
        fits = fits && AddSeparator(target) && AppendToPath(target, file_name);
    }
    if (!fits) {
        myprintf(0, "No backup of %s: the backup's path would be longer than %d characters\n", path, SRC_PATH_SIZE - 1);
        return BACKUP_NO_DOCUMENT;
    }

    void *data = LoadFile(path);
    if (!data) {
        myprintf(0, "No backup of %s: the document can't be read\n", path);
        return BACKUP_NO_DOCUMENT;
    }
    u32 size = GetLoadFileSize();
    int result = BACKUP_WRITTEN;
    if (!SaveFile(target, data, size)) {
        snprintf(backup_failure, sizeof(backup_failure), "%s: %s", target, SaveFileError());
        myprintf(0, "The backup %s could not be written; the save goes on\n", target);
        result = BACKUP_NOT_WRITTEN;
    } else {
        myprintf(3, "Backup of %s written to %s\n", path, target);
    }
    FreeMem(data, size);
    return result;
}
