// Helpers of the foundation's tests: a temporary data root per test, the log captured, whole files.
#pragma once
#include <ftw.h>
#include <gtest/gtest.h>
#include <stdlib.h>
#include <unistd.h>

#include <fstream>
#include <sstream>
#include <string>

#include "toolkit.h"

// Each test gets an empty data root of its own, removed afterwards.
class DataRootTest : public ::testing::Test
{
  protected:
    std::string root;

    void SetUp() override
    {
        char pattern[] = "/tmp/qf-ostrand-XXXXXX";
        ASSERT_NE(mkdtemp(pattern), nullptr);
        root = pattern;
        ASSERT_TRUE(SetDataRoot(root.c_str()));
    }

    void TearDown() override
    {
        nftw(
            root.c_str(), [](const char *path, const struct stat *, int, struct FTW *) { return remove(path); }, 16,
            FTW_DEPTH | FTW_PHYS);
    }

    std::string Path(const std::string &relative) const { return root + "/" + relative; }
};

inline std::string ReadWhole(const std::string &path)
{
    std::ifstream in(path, std::ios::binary);
    std::stringstream text;
    text << in.rdbuf();
    return text.str();
}

inline void WriteWhole(const std::string &path, const std::string &bytes)
{
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out << bytes;
}

inline int CountLines(const std::string &text)
{
    int lines = 0;
    for (char c : text)
        lines += c == '\n';
    return lines;
}

// The log lines written while `fn` runs.
template <typename F> std::string CaptureLog(F fn)
{
    ::testing::internal::CaptureStderr();
    fn();
    return ::testing::internal::GetCapturedStderr();
}
