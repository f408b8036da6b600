// SPDX-License-Identifier: MIT
// The desktop seam on Qt: real message boxes and file dialogs, Qt's event loop, the system's
// clocks, folders and locale.
#pragma once

#include "base/clsDesktop.h"

namespace vk {

class clsQtDesktop : public clsDesktop {
 public:
  BoxAnswer messageBox(const std::string& title, const std::string& text, BoxButtons buttons,
                       BoxIcon icon) override;
  void doEvents() override;
  void waitEvents(int milliseconds) override;
  int64_t milliseconds() override;
  DateTime now() override;
  std::string fileDialog(FileDialogKind kind, const std::string& title, const std::string& filter,
                         const std::string& folder) override;
  std::optional<Colour> colourDialog(Colour colour) override;
  std::filesystem::path specialFolder(SpecialFolder folder) override;
  std::filesystem::path applicationFolder() override;
  std::string applicationTitle() override;
  std::string decimalSymbol() override;
  void setHourglass(bool on) override;
  void endProgram() override;
  bool ending() const override { return ending_; }

 protected:
  bool ending_ = false;

 private:
  void processEvents(bool wait);
  int depth_ = 0;
};

}  // namespace vk
