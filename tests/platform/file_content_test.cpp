#include "platform/file_content.h"
#include "support/run_program.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>

#include <sys/resource.h>

TEST(FileContent, IsWrittenWholeOrNotAtAll) {
    const QTemporaryDir folder;
    const QString path = writeFile(folder.path(), "a", "old");
    rlimit former{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &former), 0);
    rlimit full = former;
    full.rlim_cur = 8192; // as on a disk that is full from there on
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &full), 0);
    for (const int size : {12000, 100000}) { // within a buffer, and beyond it
        QString reason;
        EXPECT_FALSE(writeWholeFile(path, QByteArray(size, 'x'), &reason));
        EXPECT_FALSE(reason.isEmpty());
    }
    setrlimit(RLIMIT_FSIZE, &former);
    std::signal(SIGXFSZ, handler);
    EXPECT_EQ(readFile(path), "old");
    EXPECT_TRUE(writeWholeFile(path, "new"));
    EXPECT_EQ(readFile(path), "new");
}
