// Backups: the copy of a page file that a save makes before it replaces the file.
#pragma once

// What BackupDocument gives.
#define BACKUP_NO_DOCUMENT 0  // the document can't be read, or a path would not fit
#define BACKUP_WRITTEN 1
#define BACKUP_NOT_WRITTEN 2  // the document was read, but the copy couldn't be written

// Copies the existing document `path` to where the settings' backup_path says: beside it as
// name.bak when the backup path is empty, else into that directory (absolute, or below the
// document's) under the document's full name, making the directory as needed. BACKUP_NO_DOCUMENT,
// with a log line, when the document can't be read or a path would not fit in 255 characters;
// nothing is written then. BACKUP_NOT_WRITTEN, with BackupFailure() telling where and why, when the
// copy couldn't be written; the save may go on.
int BackupDocument(const char *path);
// The path of the copy that couldn't be written and the reason, "PATH: REASON"; "" after a good copy.
const char *BackupFailure(void);
