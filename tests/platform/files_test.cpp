#include "platform/files.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <random>

#include "platform/program_folder.h"
#include "support/temporary_folder.h"

namespace quorix {
namespace {

using namespace std::chrono_literals;

namespace fs = std::filesystem;
using testing::TemporaryFolder;

TEST(Files, RoundTripAndRefusals) {
    const TemporaryFolder folder;
    const std::vector<std::uint8_t> bytes{1, 2, 0, 255};
    ASSERT_TRUE(WriteFileAtomically(folder / "a", bytes));
    EXPECT_EQ(ReadWholeFile(folder / "a"), bytes);
    ASSERT_TRUE(WriteFileAtomically(folder / "a", {}));
    EXPECT_EQ(ReadWholeFile(folder / "a"), std::vector<std::uint8_t>{});
    EXPECT_FALSE(ReadWholeFile(folder / "absent"));
    EXPECT_FALSE(ReadWholeFile(folder.Path()));
    EXPECT_FALSE(WriteFileAtomically(folder / "no/such/folder", bytes));
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    const rlimit small{3, limit.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
    EXPECT_FALSE(WriteFileAtomically(folder / "a", bytes)) << "no room, as on a full disk";
    setrlimit(RLIMIT_FSIZE, &limit);
    EXPECT_EQ(ReadWholeFile(folder / "a"), std::vector<std::uint8_t>{});
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.Path()), {}), 1);
    fs::resize_file(folder / "a", kLargestFile + 1);
    EXPECT_FALSE(ReadWholeFile(folder / "a"));
    ASSERT_TRUE(KeepDamagedFile(folder / "a"));
    EXPECT_TRUE(fs::exists(folder / "a.bad"));
    EXPECT_FALSE(KeepDamagedFile(folder / "a"));
}

TEST(Files, AKilledWriterLeavesTheOldOrTheNewFile) {
    const TemporaryFolder folder;
    const auto path = folder / "state";
    const std::vector<std::uint8_t> contents[] = {std::vector<std::uint8_t>(200000, 'a'),
                                                  std::vector<std::uint8_t>(300000, 'b')};
    ASSERT_TRUE(WriteFileAtomically(path, contents[0]));
    std::mt19937 random(11);
    for (int round = 0; round < 25; ++round) {
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            for (int i = 0;; ++i) {
                WriteFileAtomically(path, contents[i % 2]);
            }
        }
        ::usleep(static_cast<useconds_t>(random() % 6000));
        ::kill(child, SIGKILL);
        int status = 0;
        ::waitpid(child, &status, 0);
        const auto found = ReadWholeFile(path);
        ASSERT_TRUE(found == contents[0] || found == contents[1]) << round;
    }
    folder.Write("state.1.tmp", "of a running program");
    RemoveAbandonedTemporaries(folder.Path());
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.Path()), {}), 2);
}

TEST(Files, TheProgramFolderIsTheFirstWritableOne) {
    const TemporaryFolder folder;
    folder.Write("installed/Interfaces/default.inf", "key = value");
    folder.Write("installed/units.dat", "units");
    folder.Write("installed/program", "binary");
    EXPECT_EQ(FindProgramFolder(folder / "installed", folder / "user"), folder / "installed");
    // Nobody can write there, not even root.
    EXPECT_EQ(FindProgramFolder("/proc/self", folder / "user"), folder / "user");
    EXPECT_EQ(FindProgramFolder("/proc/self", "/proc/none"), "/proc/self");
    folder.Write("user/units.dat", "mine");
    // The user's copy can be written, also where the original is closed to everyone.
    const fs::path closed = folder / "installed/Interfaces";
    fs::permissions(closed, fs::perms::owner_write, fs::perm_options::remove);
    SeedFolder(folder / "installed", folder / "user");
    fs::permissions(closed, fs::perms::owner_write, fs::perm_options::add);
    EXPECT_TRUE(fs::exists(folder / "user/Interfaces/default.inf"));
    EXPECT_NE(fs::status(folder / "user/Interfaces").permissions() & fs::perms::owner_write, fs::perms::none);
    EXPECT_FALSE(fs::exists(folder / "user/program"));
    EXPECT_EQ(fs::file_size(folder / "user/units.dat"), 4U);
    // A newer installation brings its pictures, and leaves the user's data and his own skins.
    folder.Write("user/Interfaces/mine.inf", "my skin");
    folder.Write("installed/Interfaces/default.inf", "key = another value");
    fs::last_write_time(folder / "installed/Interfaces/default.inf", fs::file_time_type::clock::now() + 1h);
    fs::last_write_time(folder / "installed/units.dat", fs::file_time_type::clock::now() + 1h);
    SeedFolder(folder / "installed", folder / "user");
    EXPECT_EQ(fs::file_size(folder / "user/Interfaces/default.inf"), 19U);
    EXPECT_TRUE(fs::exists(folder / "user/Interfaces/mine.inf"));
    EXPECT_EQ(fs::file_size(folder / "user/units.dat"), 4U);
}

}  // namespace
}  // namespace quorix
