// SPDX-License-Identifier: MIT
// What the logic needs of the desktop it runs on: message boxes, the event loop, clocks, common
// dialogs, special folders. Qt implements it in desktop/; tests answer from a queue with a clock
// turned by hand. No operation throws.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

#include "base/clsCanvas.h"

namespace vk {

enum class BoxIcon { kNone, kInformation, kExclamation, kQuestion };
enum class BoxButtons { kOk, kOkCancel, kYesNo };
/// kClosed: the box was closed without a button.
enum class BoxAnswer { kOk, kCancel, kYes, kNo, kClosed };

struct DateTime {
  int year = 2000;
  int month = 1;  // 1 to 12
  int day = 1;    // 1 to 31
  int hour = 0;   // 0 to 23
  int minute = 0;
  int second = 0;
};

enum class FileDialogKind { kOpen = 0, kSave = 1 };

enum class SpecialFolder { kMyDocuments, kAppData, kCommonAppData };

class clsDesktop {
 public:
  virtual ~clsDesktop() = default;

  /// Modal; returns when the user has answered.
  virtual BoxAnswer messageBox(const std::string& title, const std::string& text,
                               BoxButtons buttons, BoxIcon icon) = 0;
  /// Works off all pending events, deferred deletes included, and returns.
  virtual void doEvents() = 0;
  /// As doEvents, but sleeps until an event comes or the time has passed; a negative time has no
  /// end.
  virtual void waitEvents(int milliseconds) = 0;
  /// Monotonic; the start value means nothing.
  virtual int64_t milliseconds() = 0;
  virtual DateTime now() = 0;
  /// The chosen path, empty after a cancel. The filter is "text|pattern|text|pattern|".
  virtual std::string fileDialog(FileDialogKind kind, const std::string& title,
                                 const std::string& filter, const std::string& folder) = 0;
  /// The colour the user chose, empty after a cancel.
  virtual std::optional<Colour> colourDialog(Colour colour) = 0;
  /// Empty when the platform has none.
  virtual std::filesystem::path specialFolder(SpecialFolder folder) = 0;
  /// Folder of the executable.
  virtual std::filesystem::path applicationFolder() = 0;
  virtual std::string applicationTitle() = 0;
  /// The decimal symbol of the user's locale.
  virtual std::string decimalSymbol() = 0;
  /// The pointer as an hourglass, or back to normal.
  virtual void setHourglass(bool on) = 0;
  /// Ends the program at once. In the running program this does not return; the fake notes it,
  /// and from then on ending() is true.
  virtual void endProgram() = 0;
  /// Every wait and loop that yields asks this, and leaves when it is true.
  virtual bool ending() const = 0;
};

/// The desktop in use. main() or a test fixture sets it before anything else runs.
clsDesktop& desktop();
void setDesktop(clsDesktop* desktop);

}  // namespace vk
