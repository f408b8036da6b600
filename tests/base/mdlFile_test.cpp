// SPDX-License-Identifier: MIT
#include "base/mdlFile.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/file.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstddef>
#include <functional>
#include <iterator>
#include <set>
#include <tuple>

#include "tests/support/data_folder.h"
#include "tests/support/file_limit.h"

namespace {

namespace fs = std::filesystem;

constexpr int kChildCannot = 200;  // no result of a function under test

/// The names in a folder, hidden ones too, sorted, a blank between them.
std::string listing(const fs::path& folder) {
  std::set<std::string> names;
  for (const auto& entry : fs::directory_iterator(folder)) names.insert(entry.path().filename());
  std::string text;
  for (const auto& name : names) text += (text.empty() ? "" : " ") + name;
  return text;
}

/// The exit code of a child that runs `work`, -1 when it was killed.
int inChild(const std::function<int()>& work) {
  const auto child = ::fork();
  if (child == 0) ::_exit(work());
  int status = 0;
  ::waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

/// The same without the rights of the superuser, whom no permission stops.
int asOrdinaryUser(const std::function<int()>& work) {
  return inChild([&] {
    if (::geteuid() == 0 && (::setgid(65534) != 0 || ::setuid(65534) != 0)) return kChildCannot;
    return work();
  });
}

/// This process cannot give a file its name after it was written any more, as on a file system that
/// knows no files without a name.
bool refuseLinks() {
  sock_filter steps[] = {BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
                         BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, __NR_linkat, 0, 1),
                         BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | EPERM),
                         BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW)};
  const sock_fprog program = {std::size(steps), steps};
  return ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
         ::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) == 0;
}

class File : public ::testing::Test {
 protected:
  File() { ::chmod(folder_.c_str(), 0777); }

  std::string contents(const std::string& name) const {
    return vktest::DataFolder::bytesOf(folder_ / name);
  }
  void put(const std::string& name, const std::string& bytes) const { files_.put(name, bytes); }
  void mode(const std::string& name, mode_t mode) const { ::chmod((folder_ / name).c_str(), mode); }
  fs::perms modeOf(const std::string& name) const {
    return fs::status(folder_ / name).permissions();
  }

  vktest::DataFolder files_;
  fs::path folder_ = files_.path();
};

// --- writing ----------------------------------------------------------------------------------

TEST_F(File, WritesAndReplacesAndKeepsThePermissions) {
  const auto mask = ::umask(027);
  const auto path = folder_ / "A.dat";
  EXPECT_EQ(vk::writeWholeFile(path, "first\n"), vk::kFileOk);
  EXPECT_EQ(modeOf("A.dat"), fs::perms{0640});
  for (const mode_t bits : {0600u, 0666u, 0755u}) {
    mode("A.dat", bits);
    EXPECT_EQ(vk::writeWholeFile(path, std::string("\0\xFF\r\n", 4)), vk::kFileOk);
    EXPECT_EQ(modeOf("A.dat"), fs::perms{bits});
  }
  EXPECT_EQ(contents("A.dat"), std::string("\0\xFF\r\n", 4));
  EXPECT_EQ(vk::writeTextFile(path, "a\r\nb"), vk::kFileOk);
  EXPECT_EQ(contents("A.dat"), "a\r\nb\r\n");
  EXPECT_EQ(vk::writeWholeFile(path, ""), vk::kFileOk);
  EXPECT_EQ(contents("A.dat"), "");
  EXPECT_EQ(listing(folder_), "A.dat");
  ::umask(mask);
}

TEST_F(File, WritesThroughLinks) {
  put("real/A.dat", "old");
  fs::create_symlink("real/A.dat", folder_ / "link");
  fs::create_symlink(folder_ / "link", folder_ / "chain");
  fs::create_symlink("real/B.dat", folder_ / "dangling");
  fs::create_symlink("loop", folder_ / "loop");

  EXPECT_EQ(vk::writeWholeFile(folder_ / "chain", "new"), vk::kFileOk);
  EXPECT_EQ(vk::writeWholeFile(folder_ / "dangling", "made"), vk::kFileOk);
  EXPECT_EQ(vk::writeWholeFile(folder_ / "loop", "x"), vk::kFileOther);
  EXPECT_EQ(contents("real/A.dat") + contents("real/B.dat"), "newmade");
  EXPECT_TRUE(fs::is_symlink(folder_ / "link") && fs::is_symlink(folder_ / "chain") &&
              fs::is_symlink(folder_ / "dangling"));
  EXPECT_EQ(listing(folder_) + listing(folder_ / "real"),
            "chain dangling link loop realA.dat B.dat");
}

TEST_F(File, RefusesWhatIsNoPlaceForAFile) {
  fs::create_directory(folder_ / "sub");
  put("plain", "old");
  ::mkfifo((folder_ / "pipe").c_str(), 0666);
  for (const char* name : {"sub", "none/A.dat", "plain/A.dat", "pipe", "/dev/full"}) {
    EXPECT_EQ(vk::writeWholeFile(folder_ / name, "x"), vk::kFileOther) << name;
  }
  for (const std::string& name :
       {std::string("sub/"), std::string("plain\0x", 7), std::string(256, 'n')}) {
    EXPECT_EQ(vk::writeWholeFile(folder_ / name, "x"), vk::kFileBadName) << name;
  }
  EXPECT_EQ(vk::writeWholeFile("", "x"), vk::kFileBadName);
  EXPECT_EQ(contents("plain") + listing(folder_), "oldpipe plain sub");
  EXPECT_EQ(vk::writeWholeFile(folder_ / std::string(255, 'n'), "x"), vk::kFileOk);
}

TEST_F(File, LeavesProtectedFilesAlone) {
  put("locked.dat", "old");
  put("closed/A.dat", "old");
  mode("locked.dat", 0444);
  mode("closed/A.dat", 0666);
  mode("closed", 0555);
  for (const char* name : {"locked.dat", "closed/A.dat", "closed/B.dat"}) {
    const auto write = [&] { return vk::writeWholeFile(folder_ / name, "new"); };
    EXPECT_EQ(asOrdinaryUser(write), vk::kFileDenied) << name;
  }
  EXPECT_EQ(contents("locked.dat") + contents("closed/A.dat") + listing(folder_ / "closed"),
            "oldoldA.dat");
  mode("closed", 0777);
}

TEST_F(File, FullDiskLeavesTheOldFileWhole) {
  put("A.dat", "old");
  const std::string big(10000, 'x');
  vktest::FileLimit disk(0);
  for (const rlim_t room : {0u, 1u, 4096u, 10000u, 10001u}) {
    disk.set(room);
    EXPECT_EQ(vk::writeWholeFile(folder_ / "new.dat", big + "yz"), vk::kFileOther) << room;
    EXPECT_EQ(vk::writeTextFile(folder_ / "A.dat", big), vk::kFileOther) << room;
    EXPECT_EQ(contents("A.dat") + listing(folder_), "oldA.dat") << room;
  }
  disk.set(10002);
  EXPECT_EQ(vk::writeTextFile(folder_ / "A.dat", big), vk::kFileOk);
  EXPECT_EQ(contents("A.dat"), big + "\r\n");
}

TEST_F(File, AnErrorSticksToTheWriter) {
  put("A.dat", "old");
  vk::FileWriter writer;
  ASSERT_EQ(writer.open(folder_ / "A.dat"), vk::kFileOk);
  {
    const vktest::FileLimit disk(100);
    EXPECT_EQ(writer.write(std::string(60, 'a')), vk::kFileOk);
    EXPECT_EQ(writer.write(std::string(60, 'b')), vk::kFileOther);
  }
  // There is room again, but the file has a hole in its story.
  EXPECT_EQ(writer.write("c"), vk::kFileOther);
  EXPECT_EQ(writer.prepare(), vk::kFileOther);
  EXPECT_EQ(writer.commit(), vk::kFileOther);
  EXPECT_EQ(writer.write("d"), vk::kFileOther);
  EXPECT_EQ(contents("A.dat") + listing(folder_), "oldA.dat");

  ASSERT_EQ(writer.open(folder_ / "A.dat"), vk::kFileOk);
  EXPECT_EQ(writer.write("again") + writer.prepare(), vk::kFileOk);
  EXPECT_EQ(contents("A.dat"), "old");
  EXPECT_EQ(writer.commit(), vk::kFileOk);
  EXPECT_EQ(contents("A.dat"), "again");
}

TEST_F(File, NothingStandsUnderTheNameWithoutACommit) {
  vk::FileWriter writer;
  for (const int32_t error :
       {writer.write("x"), writer.prepare(), writer.commit(), writer.commitUnflushed()})
    EXPECT_EQ(error, vk::kFileOther);
  ASSERT_EQ(writer.open(folder_ / "A.dat"), vk::kFileOk);
  EXPECT_EQ(writer.write("part"), vk::kFileOk);
  EXPECT_TRUE(writer.isOpen() && !fs::exists(folder_ / "A.dat"));
  EXPECT_EQ(writer.commitUnflushed() + vk::flushFolder(folder_), vk::kFileOk);
  EXPECT_FALSE(writer.isOpen());
  EXPECT_EQ(writer.commit(), vk::kFileOther);
  {
    vk::FileWriter other;
    ASSERT_EQ(other.open(folder_ / "A.dat"), vk::kFileOk);
    EXPECT_EQ(other.write("new"), vk::kFileOk);
    ASSERT_EQ(other.open(folder_ / "B.dat"), vk::kFileOk);
    other.discard();
    EXPECT_EQ(other.commit(), vk::kFileOther);
    ASSERT_EQ(other.open(folder_ / "C.dat"), vk::kFileOk);
  }
  EXPECT_EQ(contents("A.dat") + listing(folder_), "partA.dat");
}

// The folder of each row is new to the process that writes to it.
TEST_F(File, AKilledWriterLeavesTheOldFileAndNoRubbish) {
  for (const bool named : {false, true}) {
    const std::string name = named ? "named" : "nameless";
    put(name + "/A.dat", "old");
    const auto kill = [&] {
      vk::FileWriter writer;
      if (named && !refuseLinks()) return kChildCannot;
      if (writer.open(folder_ / name / "A.dat") == 0 && writer.write("x") == 0) ::raise(SIGKILL);
      return 1;
    };
    const auto killed = inChild(kill);
    if (killed == kChildCannot) GTEST_SKIP() << "no system call can be refused here";
    EXPECT_EQ(killed, -1);
    EXPECT_EQ(contents(name + "/A.dat"), "old");
    EXPECT_TRUE(!named || listing(folder_ / name).rfind(".A.dat.", 0) == 0);
    EXPECT_EQ(vk::writeWholeFile(folder_ / name / "B.dat", "new"), vk::kFileOk);
    EXPECT_EQ(listing(folder_ / name), "A.dat B.dat");
  }
}

TEST_F(File, WritesWhereAFileIsNamedFromTheBeginning) {
  put("A.dat", "old");
  const auto written = inChild([&] {
    if (!refuseLinks()) return kChildCannot;
    vk::FileWriter writer;
    if (writer.open(folder_ / "A.dat") + writer.write("new") != vk::kFileOk) return 1;
    if (writer.commit() != vk::kFileOk || contents("A.dat") != "new") return 2;
    if (writer.open(folder_ / "B.dat") + writer.write("x") != vk::kFileOk) return 3;
    if (listing(folder_).rfind(".B.dat.", 0) != 0) return 4;
    writer.discard();
    return listing(folder_) == "A.dat" ? 0 : 5;
  });
  if (written == kChildCannot) GTEST_SKIP() << "no system call can be refused here";
  EXPECT_EQ(written, 0);
}

TEST_F(File, SweepsOnlyWhatDeadProcessesLeft) {
  const auto dead = ::fork();
  if (dead == 0) ::_exit(0);
  ::waitpid(dead, nullptr, 0);
  const auto left = "." + std::to_string(dead) + "-";
  for (const auto& name : {"." + left + "0.tmp", ".A.dat" + left + "12.tmp",
                           ".own." + std::to_string(::getpid()) + "-0.tmp"}) {
    put(name, "rubbish");
  }
  std::set<std::string> kept = {".alive.1-0.tmp",
                                ".zero.0-0.tmp",
                                "A.dat" + left + "0.tmp",
                                ".A.dat" + left + ".tmp",
                                ".A.dat" + left + "0.tmp2",
                                ".A.dat" + left + "0x.tmp",
                                ".A.dat." + left + "-0.tmp",
                                ".locked" + left + "0.tmp"};
  for (const auto& name : kept) put(name, "kept");
  for (const char* name : {"folder", "link"}) kept.insert("." + (name + left) + "0.tmp");
  kept.insert("new");
  fs::create_directory(folder_ / (".folder" + left + "0.tmp"));
  fs::create_symlink("new", folder_ / (".link" + left + "0.tmp"));
  const int lock = ::open((folder_ / (".locked" + left + "0.tmp")).c_str(), O_RDONLY);
  ASSERT_EQ(::flock(lock, LOCK_EX), 0);

  EXPECT_EQ(vk::writeWholeFile(folder_ / "new", "x"), vk::kFileOk);
  ::close(lock);
  std::string text;
  for (const auto& name : kept) text += (text.empty() ? "" : " ") + name;
  EXPECT_EQ(listing(folder_), text);
}

TEST_F(File, TwoWritersOfOneTargetDoNotMix) {
  vk::FileWriter first, second;
  ASSERT_EQ(first.open(folder_ / "A.dat") + second.open(folder_ / "A.dat"), 0);
  EXPECT_EQ(first.write("first") + second.write("second, longer"), 0);
  EXPECT_EQ(second.commit() + first.commit(), vk::kFileOk);
  EXPECT_EQ(contents("A.dat") + listing(folder_), "firstA.dat");
  // A folder comes into the way.
  ASSERT_EQ(first.open(folder_ / "B.dat"), vk::kFileOk);
  fs::create_directory(folder_ / "B.dat");
  EXPECT_EQ(first.commit(), vk::kFileOther);
  EXPECT_EQ(listing(folder_), "A.dat B.dat");
}

// --- reading ----------------------------------------------------------------------------------

TEST_F(File, ReadsLinesWithAnyEnd) {
  const std::pair<std::string, std::string> rows[] = {
      {"", ""},
      {"a\r\nb\nc\rd", "a\r\nb\r\nc\r\nd\r\n"},
      {"\r\n\r\na\r", "\r\n\r\na\r\n"},
      {"\r\r\n\n\n\r", "\r\n\r\n\r\n\r\n\r\n"},
      {std::string("a\0b\n\xFF\x1A", 6), std::string("a\0b\r\n\xFF\x1A\r\n", 9)}};
  std::string text = "before";
  for (const auto& [bytes, lines] : rows) {
    put("A.hed", bytes);
    EXPECT_EQ(vk::readTextFile(folder_ / "A.hed", text), vk::kFileOk);
    EXPECT_EQ(text, lines);
  }
  // Such a file says that it is empty.
  EXPECT_EQ(vk::readTextFile("/proc/self/status", text), vk::kFileOk);
  EXPECT_NE(text.find("\r\nPid:"), std::string::npos);
  EXPECT_EQ(vk::readTextFile("/proc/self/status", text, 100), vk::kFileNoMemory);
}

TEST_F(File, ReadFailures) {
  fs::create_directory(folder_ / "sub");
  put("plain", "0123456789");
  ::mkfifo((folder_ / "pipe").c_str(), 0666);
  const auto read = [&](const std::string& name, std::size_t limit = 100) {
    std::string text = "before";
    const auto error = vk::readTextFile(name.empty() ? "" : folder_ / name, text, limit);
    return std::to_string(error) + " " + text;
  };
  for (const char* name : {"none/A.hed", "plain/A.hed", "sub", "pipe"}) {
    EXPECT_EQ(read(name), "75 ") << name;
  }
  EXPECT_EQ(
      read("none") + read("") + read(std::string("plain\0x", 7)) + read(std::string(300, 'n')),
      "53 52 52 52 ");
  EXPECT_EQ(read("plain", 9) + read("plain", 10) + read("plain", SIZE_MAX),
            "7 0 0123456789\r\n0 0123456789\r\n");
  mode("plain", 0200);
  EXPECT_EQ(asOrdinaryUser([&] { return std::stoi(read("plain")); }), vk::kFileDenied);
}

// --- finding ----------------------------------------------------------------------------------

TEST_F(File, FindsAnExtensionOfEitherCase) {
  for (const char* name : {"A.dat", "B.DAT", "B.Dat", "C.D.HED", "noext", ".hed", "F.DAT"}) {
    put(name, "x");
  }
  fs::create_directory(folder_ / "F.dat");
  fs::create_symlink("A.dat", folder_ / "L.dat");
  fs::create_symlink("gone", folder_ / "M.dat");
  std::string found;  // "-" for none
  for (const char* wanted : {"A.dat", "A.dAt", "a.dat",   "A.da",       "A",       "A.",   "A.hed",
                             "B.Dat", "B.dat", "C.d.HED", "C.D.hed",    "NOEXT",   ".HED", "F.dat",
                             "L.DAT", "M.dat", "M.DAT",   "none/A.dat", "A.dat/A", ""}) {
    const auto file = vk::findFileAnyCase(folder_ / wanted);
    found += file ? file->string().substr(folder_.string().size() + 1) + " " : "- ";
  }
  EXPECT_EQ(found, "A.dat A.dat - - - - - B.Dat B.DAT - C.D.HED - - F.DAT L.dat - - - - - ");
  EXPECT_EQ(inChild([&] {
              fs::current_path(folder_);
              return vk::findFileAnyCase("A.DAT") == fs::path("A.dat") ? 0 : 1;
            }),
            0);
}

TEST(FileError, NumbersOfTheSystem) {
  std::string numbers;
  for (const int error : {0, ENOENT, EACCES, EPERM, EROFS, ETXTBSY, EBUSY, EINVAL, ENAMETOOLONG,
                          EILSEQ, EMFILE, ENFILE, ENOMEM, ENOSPC, EIO, ENOTDIR, -1}) {
    numbers += std::to_string(vk::fileErrorOf(error)) + " ";
  }
  EXPECT_EQ(numbers, "0 53 70 70 70 70 70 52 52 52 67 67 7 75 75 75 75 ");
}

}  // namespace
