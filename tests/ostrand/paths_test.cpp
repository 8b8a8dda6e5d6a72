// Paths: parts with '/' and '\\', joining, absolute paths and the data root.
#include <gtest/gtest.h>

#include <string>

#include "ostrand/test_support.h"
#include "toolkit.h"

TEST(Paths, PartsOfAPath)
{
    struct Case {
        const char *path, *directory, *name, *base;
        int has_extension;
    } cases[] = {
        // path                      directory     name          base      ext
        {"/a/b/c.cpp", "/a/b", "c.cpp", "c", 1},
        {"C:\\Work\\Page.cpp", "C:/Work", "Page.cpp", "Page", 1},
        {"Projects\\QfFiles\\x.y.cpp", "Projects/QfFiles", "x.y.cpp", "x.y", 1},
        {"Page.cpp", "", "Page.cpp", "Page", 1},
        {"/Page.cpp", "/", "Page.cpp", "Page", 1},
        {"/a.b/noext", "/a.b", "noext", "noext", 0},
        {"/a/b/", "/a/b", "", "", 0},
        {"dir/.profile", "dir", ".profile", ".profile", 0},
        {"", "", "", "", 0},
    };
    for (const Case &c : cases) {
        char buffer[256];
        EXPECT_STREQ(XGetPath(buffer, c.path), c.directory) << c.path;
        EXPECT_STREQ(StripPath(buffer, c.path), c.name) << c.path;
        EXPECT_STREQ(StripPathAndExt(buffer, c.path), c.base) << c.path;
        EXPECT_EQ(ExtensionExists(c.path), c.has_extension) << c.path;
    }
}

TEST(Paths, JoiningDirectoriesAndNames)
{
    struct Case {
        const char *directory, *name, *joined, *with_separator;
    } cases[] = {
        {"/a/b", "c.cpp", "/a/b/c.cpp", "/a/b/"},
        {"/a/b/", "c.cpp", "/a/b/c.cpp", "/a/b/"},
        {"C:\\Work", "Page.cpp", "C:/Work/Page.cpp", "C:/Work/"},
        {"C:\\Work\\", "Page.cpp", "C:/Work/Page.cpp", "C:/Work/"},
        {"", "Page.cpp", "Page.cpp", ""},  // a bare name stays a bare name
        {"/", "x", "/x", "/"},
    };
    for (const Case &c : cases) {
        char buffer[256];
        EXPECT_STREQ(MakeFilename(buffer, c.directory, c.name), c.joined) << c.directory;
        snprintf(buffer, sizeof(buffer), "%s", c.directory);
        EXPECT_STREQ(AddBackSlashToPath(buffer), c.with_separator) << c.directory;
        // directory + separator + name is the same file as MakeFilename gives
        EXPECT_EQ(std::string(buffer) + c.name, c.joined) << c.directory;
    }
}

// The inputs of the three kinds of backup path: empty, absolute, relative.
TEST(Paths, BackupPathKinds)
{
    struct Case {
        const char *path;
        int absolute;
    } cases[] = {
        {"", 0},       {"/save", 1}, {"D:\\Save", 1},          {"D:/Save", 1},
        {"Backup", 0}, {"a/b", 0},   {"\\\\server\\share", 0}, {"D:", 0},
    };
    for (const Case &c : cases)
        EXPECT_EQ(IsAbsolutePath(c.path), c.absolute) << c.path;

    // The relative default below a document's directory, as a backup builds it.
    char target[256];
    XGetPath(target, "/w/Page.cpp");
    AddBackSlashToPath(target);
    strcat(target, "a\\b");
    AddBackSlashToPath(target);
    EXPECT_STREQ(target, "/w/a/b/");
}

class DataRoot : public DataRootTest
{
};
