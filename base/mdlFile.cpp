// SPDX-License-Identifier: MIT
#include "base/mdlFile.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <charconv>
#include <climits>
#include <csignal>
#include <limits>
#include <map>
#include <new>
#include <stdexcept>
#include <system_error>
#include <tuple>
#include <utility>

#include "base/mdlText.h"

namespace fs = std::filesystem;

namespace vk {

namespace {

constexpr uint64_t kWriteBackStep = 8u << 20;
constexpr std::size_t kReadBlock = 256u << 10;
constexpr int kTemporaryTries = 100;
constexpr std::string_view kTemporaryEnd = ".tmp";
constexpr mode_t kPermissionBits = 0777;

int32_t lastError() {
  return fileErrorOf(errno);
}

/// A descriptor that a return in between does not leak.
class Descriptor {
 public:
  explicit Descriptor(int descriptor) : descriptor_(descriptor) {}
  ~Descriptor() {
    if (descriptor_ >= 0) ::close(descriptor_);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  int get() const { return descriptor_; }

 private:
  int descriptor_;
};

/// A name that the system would cut at a zero byte names another file.
bool isName(const fs::path& path) {
  return !path.empty() && path.native().find('\0') == std::string::npos;
}

int openRetrying(const char* path, int flags, mode_t mode = 0) {
  int descriptor = 0;
  do {
    descriptor = ::open(path, flags | O_CLOEXEC, mode);
  } while (descriptor < 0 && errno == EINTR);
  return descriptor;
}

/// The file that a chain of symbolic links ends at, whether or not it is there.
int32_t resolveLinks(fs::path& path) {
  for (int depth = 0; depth < 40; ++depth) {
    std::error_code error;
    if (!fs::is_symlink(fs::symlink_status(path, error))) return kFileOk;
    const auto next = fs::read_symlink(path, error);
    if (error) return fileErrorOf(error.value());
    path = next.is_absolute() ? next : path.parent_path() / next;
  }
  return fileErrorOf(ELOOP);
}

fs::path folderOf(const fs::path& path) {
  return path.has_parent_path() ? path.parent_path() : fs::path(".");
}

/// The number for errno after `path` could not be opened: a missing folder is no missing file.
int32_t openError(const fs::path& path) {
  const auto error = lastError();
  std::error_code ignored;
  return error == kFileNotFound && !fs::is_directory(folderOf(path), ignored) ? kFileOther : error;
}

/// Hidden, so that no list of recordings shows it; cut so that any legal name leaves room.
fs::path temporaryName(const fs::path& target) {
  static std::atomic<unsigned> counter{0};
  auto stem = target.filename().native();
  stem.resize(std::min<std::size_t>(stem.size(), NAME_MAX - 40));
  auto name = "." + stem + "." + std::to_string(::getpid()) + "-" + std::to_string(counter++);
  return folderOf(target) / name.append(kTemporaryEnd);
}

/// The process that gave a file such a name, 0 for any other name.
pid_t temporaryOwner(std::string_view name) {
  if (!name.starts_with('.') || !name.ends_with(kTemporaryEnd)) return 0;
  name.remove_suffix(kTemporaryEnd.size());
  const char* const end = name.data() + name.size();
  pid_t owner = 0;
  unsigned number = 0;
  const auto dash = std::from_chars(name.data() + name.rfind('.') + 1, end, owner);
  if (dash.ec != std::errc() || dash.ptr == end || *dash.ptr != '-') return 0;
  const auto last = std::from_chars(dash.ptr + 1, end, number);
  return last.ec == std::errc() && last.ptr == end ? std::max(owner, 0) : 0;
}

bool isAlive(pid_t process) {
  return ::kill(process, 0) == 0 || errno == EPERM;
}

/// Removes a temporary file that nobody writes any more. Its writer holds a lock on it: a process
/// of that number may run on another machine, or in another container.
void removeLeftOver(const fs::path& file) {
  struct stat status {};
  if (::lstat(file.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) return;
  if (status.st_uid != ::geteuid()) return;
  const Descriptor descriptor(openRetrying(file.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK));
  if (descriptor.get() < 0 || ::flock(descriptor.get(), LOCK_EX | LOCK_NB) != 0) return;
  ::unlink(file.c_str());
}

void sweep(const fs::path& folder) {
  std::error_code error;
  fs::directory_iterator entries(folder, error);
  for (; !error && entries != fs::directory_iterator(); entries.increment(error)) {
    const auto owner = temporaryOwner(entries->path().filename().native());
    // Nothing of this process is in a folder that it has not written to yet: its own number is
    // that of a process before it.
    if (owner > 0 && (owner == ::getpid() || !isAlive(owner))) removeLeftOver(entries->path());
  }
}

int openNameless(const fs::path& folder, mode_t mode) {
  return openRetrying(folder.c_str(), O_WRONLY | O_TMPFILE, mode);
}

/// Locks a new file. False when a sweep from elsewhere, to which this process is unknown, has taken
/// its name just before.
bool lockedWhileNamed(int descriptor) {
  std::ignore = ::flock(descriptor, LOCK_EX | LOCK_NB);
  struct stat status {};
  return ::fstat(descriptor, &status) != 0 || status.st_nlink > 0;
}

int openTemporary(const fs::path& target, mode_t mode, fs::path& name) {
  int descriptor = -1;
  for (int attempt = 0; descriptor < 0 && attempt < kTemporaryTries; ++attempt) {
    name = temporaryName(target);
    descriptor = openRetrying(name.c_str(), O_WRONLY | O_CREAT | O_EXCL, mode);
    if (descriptor < 0 && errno != EEXIST) return descriptor;
    if (descriptor < 0 || lockedWhileNamed(descriptor)) continue;
    ::close(descriptor);
    descriptor = -1;
  }
  return descriptor;
}

bool linkTo(int descriptor, const fs::path& name) {
  const auto self = "/proc/self/fd/" + std::to_string(descriptor);
  return ::linkat(AT_FDCWD, self.c_str(), AT_FDCWD, name.c_str(), AT_SYMLINK_FOLLOW) == 0;
}

bool isShortage(int error) {
  return error == ENOSPC || error == EDQUOT || error == EMFILE || error == ENFILE ||
         error == ENOMEM;
}

/// Can a file in `target`'s folder be written first and named then? Asked at this process's first
/// write there, which sweeps the folder, too.
bool canNameLater(const fs::path& target) {
  static std::map<fs::path, bool> known;
  const fs::path folder = folderOf(target);
  if (const auto found = known.find(folder); found != known.end()) return found->second;
  std::error_code ignored;
  if (!fs::is_directory(folder, ignored)) return false;
  sweep(folder);
  const Descriptor descriptor(openNameless(folder, 0600));
  const auto name = temporaryName(target);
  const bool linked = descriptor.get() >= 0 && linkTo(descriptor.get(), name);
  if (linked) ::unlink(name.c_str());
  // What is short now says nothing about the file system.
  if (!linked && isShortage(errno)) return false;
  return known[folder] = linked;
}

/// May the file that stands under the target's name be replaced? `exists` tells whether one does.
int32_t checkTarget(const fs::path& target, bool& exists, mode_t& mode) {
  struct stat status {};
  exists = ::stat(target.c_str(), &status) == 0;
  if (!exists) return errno == ENOENT ? kFileOk : lastError();
  if (!S_ISREG(status.st_mode)) return kFileOther;
  if (::access(target.c_str(), W_OK) != 0) return lastError();
  mode = status.st_mode & kPermissionBits;
  return kFileOk;
}

int32_t syncDescriptor(int descriptor) {
  int result = 0;
  do {
    result = ::fsync(descriptor);
  } while (result != 0 && errno == EINTR);
  return result == 0 ? kFileOk : lastError();
}

/// Makes a rename durable. Some file systems cannot sync a folder; the file itself is whole then.
void syncFolder(const fs::path& folder) {
  const Descriptor descriptor(openRetrying(folder.c_str(), O_RDONLY | O_DIRECTORY));
  if (descriptor.get() >= 0) std::ignore = syncDescriptor(descriptor.get());
}

int32_t readAll(int descriptor, std::size_t limit, std::string& bytes) {
  struct stat status {};
  if (::fstat(descriptor, &status) != 0) return lastError();
  if (!S_ISREG(status.st_mode)) return kFileOther;
  limit = std::min(limit, std::numeric_limits<std::size_t>::max() / 2);
  const auto size = static_cast<uint64_t>(status.st_size);
  if (size > limit) return kFileNoMemory;
  // One byte more than the size: a file that grows while it is read is taken to its new end.
  bytes.resize(static_cast<std::size_t>(size) + 1);
  for (std::size_t filled = 0;;) {
    const auto count = ::read(descriptor, bytes.data() + filled, bytes.size() - filled);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return lastError();
    filled += static_cast<std::size_t>(count);
    if (filled > limit) return kFileNoMemory;
    if (count == 0) {
      bytes.resize(filled);
      return kFileOk;
    }
    if (filled == bytes.size()) bytes.resize(std::min(filled + kReadBlock, limit + 1));
  }
}

/// Every line end (CR LF, CR, LF) becomes CR LF, and the last line gets one.
std::string withLineEnds(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size() + bytes.size() / 16 + 2);
  while (!bytes.empty()) {
    const auto end =
        std::find_if(bytes.begin(), bytes.end(), [](char c) { return c == '\r' || c == '\n'; });
    const auto length = static_cast<std::size_t>(end - bytes.begin());
    text.append(bytes.substr(0, length)).append("\r\n");
    bytes.remove_prefix(length);
    bytes.remove_prefix(bytes.starts_with("\r\n") ? 2 : std::min<std::size_t>(bytes.size(), 1));
  }
  return text;
}

bool isFile(const fs::path& path) {
  std::error_code error;
  return fs::is_regular_file(path, error);
}

}  // namespace

int32_t fileErrorOf(int errnoValue) {
  switch (errnoValue) {
    case 0:
      return kFileOk;
    case ENOENT:
      return kFileNotFound;
    case EACCES:
    case EPERM:
    case EROFS:
    case ETXTBSY:
    case EBUSY:
      return kFileDenied;
    case ENAMETOOLONG:
    case EINVAL:
    case EILSEQ:
      return kFileBadName;
    case EMFILE:
    case ENFILE:
      return kFileTooMany;
    case ENOMEM:
      return kFileNoMemory;
    default:
      return kFileOther;
  }
}

FileWriter::~FileWriter() {
  discard();
}

int32_t FileWriter::open(const fs::path& target) {
  discard();
  error_ = kFileOther;
  if (!isName(target) || !target.has_filename()) return error_ = kFileBadName;
  target_ = target;
  if (const auto error = resolveLinks(target_)) return error_ = error;
  bool exists = false;
  mode_t mode = 0666;
  if (const auto error = checkTarget(target_, exists, mode)) return error_ = error;
  name_.clear();
  if (canNameLater(target_)) descriptor_ = openNameless(folderOf(target_), mode);
  if (descriptor_ < 0) descriptor_ = openTemporary(target_, mode, name_);
  if (descriptor_ < 0) return error_ = openError(target_);
  // Gives back what the creation mask took. Where a file system refuses, the file stays less open
  // than the one it replaces, never more.
  if (exists) std::ignore = ::fchmod(descriptor_, mode);
  return error_ = kFileOk;
}

int32_t FileWriter::write(const void* bytes, std::size_t count) {
  if (descriptor_ < 0 && error_ == kFileOk) error_ = kFileOther;
  prepared_ = false;
  const char* next = static_cast<const char*>(bytes);
  while (error_ == kFileOk && count > 0) {
    const auto done = ::write(descriptor_, next, count);
    if (done < 0 && errno == EINTR) continue;
    if (done <= 0) {
      error_ = done < 0 ? lastError() : kFileOther;
      break;
    }
    next += done;
    count -= static_cast<std::size_t>(done);
    written_ += static_cast<uint64_t>(done);
  }
  // The disk starts on what is there while more is fetched, so that commit() has little to wait
  // for.
  while (error_ == kFileOk && written_ - flushed_ >= kWriteBackStep) {
    std::ignore = ::sync_file_range(descriptor_, static_cast<off_t>(flushed_),
                                    static_cast<off_t>(kWriteBackStep), SYNC_FILE_RANGE_WRITE);
    flushed_ += kWriteBackStep;
  }
  return error_;
}

int32_t FileWriter::prepare() {
  if (descriptor_ < 0) return error_ == kFileOk ? kFileOther : error_;
  if (error_ == kFileOk && !prepared_) error_ = syncDescriptor(descriptor_);
  prepared_ = true;
  return error_;
}

int32_t FileWriter::commit() {
  const bool open = isOpen();
  const auto error = prepare();
  if (!open) return error;
  if (giveName() != kFileOk) return error_;
  syncFolder(folderOf(target_));
  return kFileOk;
}

int32_t FileWriter::commitUnflushed() {
  if (descriptor_ < 0) return error_ == kFileOk ? kFileOther : error_;
  std::ignore = ::sync_file_range(descriptor_, 0, 0, SYNC_FILE_RANGE_WRITE);
  return giveName();
}

/// A new file gets its own name at once. One that replaces another needs a temporary one for a
/// moment: only a rename replaces.
void FileWriter::nameLater() {
  if (linkTo(descriptor_, target_)) return;
  for (int attempt = 0; errno == EEXIST && attempt < kTemporaryTries; ++attempt) {
    const auto name = temporaryName(target_);
    if (!linkTo(descriptor_, name)) continue;
    if (::rename(name.c_str(), target_.c_str()) == 0) return;
    error_ = lastError();
    ::unlink(name.c_str());
    return;
  }
  error_ = lastError();
}

int32_t FileWriter::giveName() {
  if (error_ == kFileOk && name_.empty()) nameLater();
  const int descriptor = std::exchange(descriptor_, -1);
  const bool closed = ::close(descriptor) == 0 || errno == EINTR;
  if (!name_.empty()) {
    if (error_ == kFileOk && !closed) error_ = lastError();
    if (error_ == kFileOk && ::rename(name_.c_str(), target_.c_str()) != 0) error_ = lastError();
    if (error_ != kFileOk) ::unlink(name_.c_str());
  }
  if (error_ != kFileOk) return error_;
  error_ = kFileOther;  // nothing is open any more
  return kFileOk;
}

void FileWriter::discard() {
  if (descriptor_ >= 0) {
    ::close(descriptor_);
    if (!name_.empty()) ::unlink(name_.c_str());
    descriptor_ = -1;
  }
  written_ = 0;
  flushed_ = 0;
  prepared_ = false;
  error_ = kFileOk;
}

int32_t flushFolder(const fs::path& folder) {
  const Descriptor descriptor(openRetrying(folder.c_str(), O_RDONLY | O_DIRECTORY));
  if (descriptor.get() >= 0) return ::syncfs(descriptor.get()) == 0 ? kFileOk : lastError();
  ::sync();  // a folder that may be written to, but not be read
  return kFileOk;
}

int32_t writeWholeFile(const fs::path& path, std::string_view text) {
  FileWriter writer;
  if (const auto error = writer.open(path)) return error;
  if (const auto error = writer.write(text)) return error;
  return writer.commit();
}

int32_t writeTextFile(const fs::path& path, std::string_view text) {
  FileWriter writer;
  if (const auto error = writer.open(path)) return error;
  if (const auto error = writer.write(text)) return error;
  if (const auto error = writer.write("\r\n")) return error;
  return writer.commit();
}

int32_t readTextFile(const fs::path& path, std::string& text, std::size_t limit) {
  text.clear();
  if (!isName(path)) return kFileBadName;
  // Not blocking: opening a pipe that nobody writes to must not hang.
  const Descriptor descriptor(openRetrying(path.c_str(), O_RDONLY | O_NONBLOCK));
  if (descriptor.get() < 0) return openError(path);
  try {
    std::string bytes;
    if (const auto error = readAll(descriptor.get(), limit, bytes)) return error;
    text = withLineEnds(bytes);
  } catch (const std::bad_alloc&) {
    return kFileNoMemory;
  } catch (const std::length_error&) {
    return kFileNoMemory;
  }
  return kFileOk;
}

std::optional<fs::path> findFileAnyCase(const fs::path& path) {
  if (isFile(path)) return path;
  if (!path.has_extension()) return std::nullopt;
  const auto stem = path.stem();
  const auto extension = path.extension().native();
  std::optional<fs::path> found;
  std::error_code error;
  fs::directory_iterator entries(folderOf(path), error);
  for (; !error && entries != fs::directory_iterator(); entries.increment(error)) {
    const auto name = entries->path().filename();
    if (name.stem() != stem || !equalNoCase(name.extension().native(), extension)) continue;
    const auto candidate = path.parent_path() / name;
    // The order of a listing is chance; the first in byte order is always the same one.
    if (isFile(candidate) && (!found || candidate < *found)) found = candidate;
  }
  return found;
}

}  // namespace vk
