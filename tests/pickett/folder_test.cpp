// Folders as the selectors read them: patterns, the order of entries, the nearest folder, the way
// up and a typed name split into folder and name.
#include <unistd.h>

#include "pickett_fixture.h"

static std::vector<std::string> Names(t_List *entries)
{
    std::vector<std::string> names;
    for (T_FOLDER_ENTRY *e = (T_FOLDER_ENTRY *)entries->first; e->next; e = e->next)
        names.push_back(std::string(e->name) + (e->is_folder ? "/" : ""));
    return names;
}

TEST(PickettPattern, WildcardsAndAlternatives)
{
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

class PickettFolder : public PickettTest
{
};

TEST_F(PickettFolder, FoldersFirstSortedWithoutCaseThenMatchingFiles)
{
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
