// SPDX-License-Identifier: MIT
#include "maintenance/mdlUpgrade.h"

#include <filesystem>
#include <fstream>
#include <tuple>

#include "base/mdlBox.h"
#include "base/mdlGeneral.h"
#include "base/mdlMessages.h"
#include "base/mdlText.h"
#include "link/mdlReadTimeout.h"
#include "link/mdlUSBCommand.h"
#include "link/vk240q_lib.h"

namespace vk {

namespace {

constexpr int32_t kDevice = 1;
constexpr const char* kNotUpgraded = "VK-480Q is not upgraded.";
constexpr const char* kProgramError =
    "Program Error has occurred and failed in upgrading.\n"
    "VK-480Q has the possibility that it does not work normally.\n"
    "Upgrade work again.";

// The exact two spellings count; other mixes of letter case are refused.
bool isProgramName(const std::string& path) {
  const std::string extension = right(path, 3);
  return extension == "PRG" || extension == "prg";
}

bool readImage(const std::string& path, int32_t size, std::vector<unsigned char>& image) {
  std::error_code error;
  const auto length = std::filesystem::file_size(path, error);
  if (error || length != static_cast<std::uintmax_t>(size)) return false;
  image.resize(size);
  std::ifstream file(path, std::ios::binary);
  file.read(reinterpret_cast<char*>(image.data()), size);
  return file.gcount() == size;
}

void chooseFile(Upgrade& upgrade) {
  const FileDialogResult chosen = fileDialog(FileDialogKind::kOpen, "File designation",
                                             fileDialogText(17) + fileDialogText(20));
  if (chosen.path.empty()) return;
  if (!isProgramName(chosen.path) ||
      !readImage(chosen.path, upgradeImageSize(upgrade.imageKind), upgrade.image)) {
    showBox("Version Up", "Specified file is not a program file.");
    return;
  }
  upgrade.step = UpgradeStep::kReady;
  upgrade.message = upgradeText(upgrade.step).lines;
}

void show(const JobView& view, const std::string& label, const std::string& progress) {
  view.tell(label, progress);
  // A transfer that is broken off would leave the instrument without a program.
  std::ignore = view.yield();
}

// Whether the instrument says that it has taken the program.
bool renewed(const JobView& view) {
  const ReadTimeoutGuard timeout(kTimeoutUpgrade);
  show(view, "Now it is being renewed.", "READ_A...");
  std::string reply;
  return receiveText(kDevice, reply) >= 1 && contains(reply, "END");
}

struct Transferred {
  bool done = false;
  std::string message;
};

Transferred transfer(const std::vector<unsigned char>& image, const JobView& view) {
  constexpr int kBlocks = 3;
  const int32_t size = image.size();
  for (int block = 1; block <= kBlocks; ++block) {
    show(view, "Data are being transmitted.", "PWE..." + textOf(block));
    if (usbPWE(block, size) != kUsbOk) {
      return {false, std::string("Program command error has occurred.\n") + kNotUpgraded};
    }
  }
  if (Vk240qWriteB(kDevice, image.data(), size) != kUsbWriteOk) {
    return {false, std::string("Transmitting Error has occurred.\n") + kNotUpgraded};
  }
  if (!renewed(view)) return {false, kProgramError};
  return {true, upgradeText(UpgradeStep::kFinished).lines};
}

}  // namespace

int32_t upgradeImageSize(int32_t imageKind) {
  return imageKind == 0 ? kSmallImage : kLargeImage;
}

UpgradeText upgradeText(UpgradeStep step) {
  switch (step) {
    case UpgradeStep::kWarning:
      return {
          "Upgrade of VK-480Q is done.\n"
          "Prepare for the latest edition of the program file.\n"
          "Upgrade is possible only when one unit is connected.\n"
          "\n"
          "Caution\n"
          "If upgrade is tried when several units are connected,\n"
          "there is a possibility that all VK-480Qs do not operate.",
          "Next"};
    case UpgradeStep::kChooseFile:
      return {"Specify the place of the program file.", "Next"};
    case UpgradeStep::kReady:
      return {
          "Program file has been read.\n"
          "Push the executive button when you do an upgrade.",
          "Run"};
    case UpgradeStep::kFinished:
      return {
          "Upgrade has been finished properly.\n"
          "Turn on the power of VK-480Q again.",
          "finish"};
    case UpgradeStep::kFailed:
      break;
  }
  return {"", "Run"};
}

void beginUpgrade(Upgrade& upgrade) {
  // The result says only that a reply came; the kind is what counts.
  std::ignore = usbUpgradeMET(upgrade.imageKind);
  upgrade.message = upgradeText(upgrade.step).lines;
}

bool nextUpgradeStep(Upgrade& upgrade, const JobView& view) {
  switch (upgrade.step) {
    case UpgradeStep::kWarning:
      upgrade.step = UpgradeStep::kChooseFile;
      upgrade.message = upgradeText(upgrade.step).lines;
      view.tell(upgrade.message);
      chooseFile(upgrade);
      return false;
    case UpgradeStep::kChooseFile:
      chooseFile(upgrade);
      return false;
    case UpgradeStep::kReady: {
      const Transferred result = transfer(upgrade.image, view);
      upgrade.step = result.done ? UpgradeStep::kFinished : UpgradeStep::kFailed;
      upgrade.message = result.message;
      return false;
    }
    case UpgradeStep::kFinished:
    case UpgradeStep::kFailed:
      return true;
  }
  return true;
}

}  // namespace vk
