// Starts and stops the whole application headless for the tests, and captures its log.
#include "tests/harness/harness.h"

#include <dirent.h>
#include <fcntl.h>
#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>
#include <unistd.h>

#include <string>

extern "C" t_Window *Dll_OpenQuillformWindow(T_CREATE_APPLICATION *create);

// The sanitizers' runtime, when the tests are built with it: it reports where it is told.
extern "C" void __sanitizer_set_report_fd(void *fd) __attribute__((weak));

// The log goes to a file while the harness runs, so that tests can read what was said; what a
// sanitizer reports still goes to the real standard error.
static int saved_stderr = -1;
static char log_path[600];
static std::string log_text;

static void CaptureLog(const char *root)
{
    snprintf(log_path, sizeof(log_path), "%s.log", root);
    fflush(stderr);
    saved_stderr = dup(2);
    int fd = open(log_path, O_CREAT | O_TRUNC | O_WRONLY, 0600);
    if (fd >= 0) {
        dup2(fd, 2);
        close(fd);
    }
    if (__sanitizer_set_report_fd && saved_stderr >= 0)
        __sanitizer_set_report_fd((void *)(intptr_t)saved_stderr);
}

static void ReleaseLog(void)
{
    fflush(stderr);
    if (__sanitizer_set_report_fd)
        __sanitizer_set_report_fd((void *)(intptr_t)2);
    if (saved_stderr >= 0) {
        dup2(saved_stderr, 2);
        close(saved_stderr);
        saved_stderr = -1;
    }
    unlink(log_path);
}

const char *HarnessLog(void)
{
    fflush(stderr);
    log_text.clear();
    FILE *f = fopen(log_path, "r");
    if (f) {
        char buffer[4096];
        size_t n;
        while ((n = fread(buffer, 1, sizeof(buffer), f)) > 0)
            log_text.append(buffer, n);
        fclose(f);
    }
    return log_text.c_str();
}

void HarnessClearLog(void)
{
    fflush(stderr);
    if (truncate(log_path, 0) != 0)
        return;
    lseek(2, 0, SEEK_SET);
}

int MakeTempRoot(char *path, size_t size)
{
    const char *base = getenv("TMPDIR");
    snprintf(path, size, "%s/quillform-test-XXXXXX", base && *base ? base : "/tmp");
    return mkdtemp(path) != NULL;
}

void RemoveTree(const char *path)
{
    DIR *dir = opendir(path);
    if (dir) {
        while (struct dirent *entry = readdir(dir)) {
            if (strcmp(entry->d_name, ".") == 0 || strcmp(entry->d_name, "..") == 0)
                continue;
            std::string child = std::string(path) + "/" + entry->d_name;
            struct stat st;
            if (lstat(child.c_str(), &st) == 0 && S_ISDIR(st.st_mode))
                RemoveTree(child.c_str());
            else
                unlink(child.c_str());
        }
        closedir(dir);
    }
    rmdir(path);
}

int HarnessStart(T_HARNESS *harness, const char *root, i16 width, i16 height)
{
    memset(harness, 0, sizeof(*harness));
    if (root) {
        snprintf(harness->root, sizeof(harness->root), "%s", root);
    } else {
        if (!MakeTempRoot(harness->root, sizeof(harness->root)))
            return 0;
        harness->own_root = 1;
    }
    CaptureLog(harness->root);
    if (!OpenToolkit("headless", width, height, harness->root)) {
        ReleaseLog();
        return 0;
    }
    _OstrandBase->log_level = 3;
    harness->icon_bank = MakeToolIconBank();
    harness->application = NewApplication("Quillform");
    T_CREATE_APPLICATION create;
    memset(&create, 0, sizeof(create));
    create.icon_bank = harness->icon_bank;
    create.application = harness->application;
    create.x = 0;
    create.y = 0;
    create.w = width;
    create.h = height;
    harness->main_window = Dll_OpenQuillformWindow(&create);
    RefreshHandlers(NULL);
    return harness->main_window != NULL;
}

void HarnessStop(T_HARNESS *harness, int keep_root)
{
    CloseToolkit();
    FreeTextureBank(harness->icon_bank);
    harness->icon_bank = NULL;
    ReleaseLog();
    if (harness->own_root && !keep_root)
        RemoveTree(harness->root);
}
