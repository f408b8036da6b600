// SPDX-License-Identifier: MIT
#include "maintenance/mdlUpgrade.h"

#include <filesystem>
#include <fstream>

#include "base/clsDesktop.h"
#include "base/mdlGeneral.h"
#include "base/mdlMessages.h"
#include "base/mdlText.h"
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
  image.resize(static_cast<std::size_t>(size));
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
    desktop().messageBox("Version Up", "Specified file is not a program file.", BoxButtons::kOk,
                         BoxIcon::kExclamation);
    return;
  }
  upgrade.step = UpgradeStep::kReady;
  upgrade.message = upgradeText(upgrade.step).lines;
}

void tell(const Upgrade& upgrade, const std::string& label, const std::string& progress) {
  if (upgrade.show) upgrade.show(label, progress);
  desktop().doEvents();
}

// Whether the instrument says that it has taken the program.
bool renewed(const Upgrade& upgrade) {
  const ReadTimeout patience(kTimeoutUpgrade);
  tell(upgrade, "Now it is being renewed.", "READ_A...");
  std::string reply(kReplyLength, ' ');
  const int32_t result = Vk240qReadA(kDevice, reply.data());
  return result >= 1 && contains(reply, "END");
}

// The whole transfer; what it came to is the message.
bool transfer(const Upgrade& upgrade, std::string& message) {
  constexpr int kBlocks = 3;
  const auto size = static_cast<int32_t>(upgrade.image.size());
  for (int block = 1; block <= kBlocks; ++block) {
    tell(upgrade, "Data are being transmitted.", "PWE..." + textOf(block));
    if (usbPWE(block, size) != kUsbOk) {
      message = std::string("Program command error has occurred.\n") + kNotUpgraded;
      return false;
    }
  }
  if (Vk240qWriteB(kDevice, upgrade.image.data(), size) != kUsbWriteOk) {
    message = std::string("Transmitting Error has occurred.\n") + kNotUpgraded;
    return false;
  }
  if (!renewed(upgrade)) {
    message = kProgramError;
    return false;
  }
  message = upgradeText(UpgradeStep::kFinished).lines;
  return true;
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
  (void)usbUpgradeMET(upgrade.imageKind);
  upgrade.message = upgradeText(upgrade.step).lines;
}

bool nextUpgradeStep(Upgrade& upgrade) {
  switch (upgrade.step) {
    case UpgradeStep::kWarning:
      upgrade.step = UpgradeStep::kChooseFile;
      upgrade.message = upgradeText(upgrade.step).lines;
      if (upgrade.show) upgrade.show(upgrade.message, {});
      chooseFile(upgrade);
      return false;
    case UpgradeStep::kChooseFile:
      chooseFile(upgrade);
      return false;
    case UpgradeStep::kReady:
      upgrade.step =
          transfer(upgrade, upgrade.message) ? UpgradeStep::kFinished : UpgradeStep::kFailed;
      return false;
    case UpgradeStep::kFinished:
    case UpgradeStep::kFailed:
      return true;
  }
  return true;
}

}  // namespace vk
