// Backups: the copy of a page file that a save makes before it replaces the file.
#pragma once

// Copies the existing document `path` to where the settings' backup_path says: beside it as
// name.bak when the backup path is empty, else into that directory (absolute, or below the
// document's) under the document's full name, making the directory as needed. False, with a log
// line, when the document can't be read or a path would not fit in 255 characters; nothing is
// written then. A copy that can't be written is logged and still gives true.
int BackupDocument(const char *path);
