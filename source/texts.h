// The page files' texts that a person reads: what opening a file tells, in one place.
#pragma once

#define TXT_ERROR_TITLE "Quillform error"  // also the title of the editor's own error messages
#define TXT_WARNING_TITLE "Quillform warning"
#define TXT_ALREADY_OPEN "File %s is already open."
#define TXT_COULD_NOT_OPEN "Could not open page in file %s"
#define TXT_DUPLICATES_REMAPPED "Duplicate item codes were found in this page, duplicate item codes have been remapped."
