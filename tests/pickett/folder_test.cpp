// Folders as the selectors read them: patterns, the order of entries, the nearest folder, the way
// up and a typed name split into folder and name.
#include <unistd.h>

#include "pickett_fixture.h"

static std::vector<std::string> Names(t_List *entries) {
    std::vector<std::string> names;
    for (T_FOLDER_ENTRY *e = (T_FOLDER_ENTRY *)entries->first; e->next; e = e->next)
        names.push_back(std::string(e->name) + (e->is_folder ? "/" : ""));
    return names;
}

TEST(PickettPattern, WildcardsAndAlternatives) {
    struct {
        const char *pattern, *name;
        int match;
    } rows[] = {
        {"*.cpp", "page.cpp", 1},
        {"*.cpp", "PAGE.CPP", 1},
        {"*.cpp", "page.cpp.bak", 0},
        {"*.cpp", "page.h", 0},
        {"*.*", "README", 1},
        {"*.*", "a.b", 1},
        {"", "anything", 1},
        {nullptr, "anything", 1},
        {"p?ge.*", "page.h", 1},
        {"p?ge.*", "pge.h", 0},
        {"*a*b*", "xxaxxbxx", 1},
        {"*a*b", "ab_a", 0},
        {"*.fnt;*.ttf", "x.ttf", 1},
        {"*.fnt;*.ttf", "x.otf", 0},
        {"page.cpp", "page.cpp", 1},
        {"*", "", 1},
        {"?", "", 0},
        {";*.h", "a.h", 1},
    };
    for (auto &r : rows)
        EXPECT_EQ(MatchPattern(r.pattern, r.name), r.match)
            << (r.pattern ? r.pattern : "(null)") << " against " << r.name;
}

class PickettFolder : public PickettTest {};

TEST_F(PickettFolder, FoldersFirstSortedWithoutCaseThenMatchingFiles) {
    MakeFiles({"b.cpp", "A.cpp", "c.h", "Zeta/", "alpha/", "alpha/inner.cpp", "Middle.CPP"});
    struct {
        const char *pattern;
        u32 flags;
        std::vector<std::string> expected;
    } rows[] = {
        {"*.cpp", 0, {"../", "alpha/", "Zeta/", "A.cpp", "b.cpp", "Middle.CPP"}},
        {"*.h", 0, {"../", "alpha/", "Zeta/", "c.h"}},
        {"*.*", 0, {"../", "alpha/", "Zeta/", "A.cpp", "b.cpp", "c.h", "Middle.CPP"}},
        {"*.cpp", FOLDER_FILES_ONLY, {"A.cpp", "b.cpp", "Middle.CPP"}},
    };
    for (auto &r : rows) {
        t_List entries;
        InitList(&entries, "entries");
        EXPECT_TRUE(ReadFolder(&entries, scratch.c_str(), r.pattern, r.flags, 0));
        EXPECT_EQ(Names(&entries), r.expected) << r.pattern;
        FreeFolderEntries(&entries);
    }
}

TEST_F(PickettFolder, RootHasNoWayUpAndNeverShowsItself) {
    t_List entries;
    InitList(&entries, "entries");
    ASSERT_TRUE(ReadFolder(&entries, "/", "*.*", 0, 0));
    std::vector<std::string> names = Names(&entries);
    EXPECT_EQ(std::count(names.begin(), names.end(), "../"), 0);
    EXPECT_EQ(std::count(names.begin(), names.end(), "./"), 0);
    EXPECT_GT(std::count(names.begin(), names.end(), "tmp/"), 0);
    FreeFolderEntries(&entries);
}

TEST_F(PickettFolder, AnUnreadableFolderGivesNothing) {
    t_List entries;
    InitList(&entries, "entries");
    EXPECT_FALSE(ReadFolder(&entries, (scratch + "/missing").c_str(), "*.*", 0, 0));
    EXPECT_TRUE(LIST_EMPTY(&entries));
    if (geteuid() != 0) {  // root reads every folder
        MakeFiles({"locked/", "locked/a.cpp"});
        chmod((scratch + "/locked").c_str(), 0);
        EXPECT_FALSE(ReadFolder(&entries, (scratch + "/locked").c_str(), "*.*", 0, 0));
        EXPECT_TRUE(LIST_EMPTY(&entries));
    }
}

TEST_F(PickettFolder, NearestExistingFolderAtOrAbove) {
    MakeFiles({"a/b/"});
    struct {
        std::string path, expected;
    } rows[] = {
        {scratch + "/a/b", scratch + "/a/b"},       {scratch + "/a/b/", scratch + "/a/b"},
        {scratch + "/a/b/c/d/e", scratch + "/a/b"}, {scratch + "/a\\gone", scratch + "/a"},
        {"/no-such-folder-here/x/y", "/"},          {"/", "/"},
    };
    char dest[PICKETT_PATH_SIZE];
    for (auto &r : rows)
        EXPECT_EQ(NearestFolder(dest, sizeof dest, r.path.c_str()), r.expected) << r.path;
    char cwd[PICKETT_PATH_SIZE];
    ASSERT_NE(getcwd(cwd, sizeof cwd), nullptr);
    EXPECT_STREQ(NearestFolder(dest, sizeof dest, ""), cwd);
    EXPECT_STREQ(NearestFolder(dest, sizeof dest, "no-such-sub/folder"), cwd);
}

TEST(PickettPath, WayUpAndJoining) {
    struct {
        const char *folder, *up;
    } ups[] = {{"/a/b", "/a"}, {"/a/b/", "/a"}, {"/a", "/"}, {"/", "/"}};
    char dest[PICKETT_PATH_SIZE];
    for (auto &r : ups) EXPECT_STREQ(ParentFolder(dest, sizeof dest, r.folder), r.up) << r.folder;
    EXPECT_STREQ(JoinPath(dest, sizeof dest, "/a", "b.cpp"), "/a/b.cpp");
    EXPECT_STREQ(JoinPath(dest, sizeof dest, "/", "b.cpp"), "/b.cpp");
    EXPECT_STREQ(JoinPath(dest, sizeof dest, "/a/", "b.cpp"), "/a/b.cpp");
}

TEST(PickettPath, TypedNameJoinsTheFolderOrGoesToItsOwnPath) {
    struct {
        const char *typed;
        int ok;
        const char *directory, *name;
    } rows[] = {
        {"page.cpp", 1, "/work/p", "page.cpp"},
        {"/a/b/c.cpp", 1, "/a/b", "c.cpp"},
        {"/c.cpp", 1, "/", "c.cpp"},
        {"sub/c.cpp", 1, "/work/p/sub", "c.cpp"},
        {"\\x\\y.cpp", 1, "/x", "y.cpp"},
        {"", 0, "before", "before"},
        {"/a/b/", 0, "before", "before"},
    };
    for (auto &r : rows) {
        T_FILE_REQUESTER_ANSWER answer;
        snprintf(answer.directory, sizeof answer.directory, "before");
        snprintf(answer.name, sizeof answer.name, "before");
        EXPECT_EQ(SplitTypedName(&answer, "/work/p", r.typed), r.ok) << r.typed;
        EXPECT_STREQ(answer.directory, r.directory) << r.typed;
        EXPECT_STREQ(answer.name, r.name) << r.typed;
    }
}

TEST_F(PickettFolder, FontListHasTheFolderThenTheMachinesFontsOnce) {
    MakeFiles({"fonts/My.fnt", "fonts/DejaVuSans.ttf", "fonts/notes.txt", "fonts/sub/"});
    std::string folder = scratch + "/fonts";
    struct {
        const char *patterns;
        std::vector<std::string> own;
        int machine_sans;  // DejaVuSans.ttf comes from the machine's folder
    } rows[] = {
        {"*.fnt", {"My.fnt"}, 1},
        {"*.fnt;*.*", {"DejaVuSans.ttf", "My.fnt", "notes.txt"}, 0},
    };
    for (auto &r : rows) {
        t_List entries;
        InitList(&entries, "fonts");
        ReadFontList(&entries, folder.c_str(), r.patterns);
        std::vector<std::string> own;
        u32 machine = 0;
        for (T_FOLDER_ENTRY *e = (T_FOLDER_ENTRY *)entries.first; e->next; e = e->next) {
            EXPECT_FALSE(e->is_folder);
            if (e->from == 0) {
                EXPECT_EQ(machine, 0u) << "the folder's own fonts come first";
                own.push_back(e->name);
            } else {
                machine++;
            }
        }
        EXPECT_EQ(own, r.own) << r.patterns;
        EXPECT_GT(machine, 3u);
        EXPECT_EQ(FindFolderEntry(&entries, "DejaVuSans.ttf", 1) != nullptr, r.machine_sans);
        FreeFolderEntries(&entries);
    }
}
