// SPDX-License-Identifier: MIT
// What the setting dialogs of the monitors accept, ask and offer. Texts are those of the controls;
// a number that its record field cannot hold is not valid.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vk {

enum class EntryRule {
  kSerial,     ///< 1 to 9999999, the last meaning no box; the box need not be there
  kLimit,      ///< any number
  kScale,      ///< any number but 0
  kDialStart,  ///< any whole number: a dial may well start at 0
  kCaption,    ///< what fits into a line of texts between commas
};
bool validEntry(EntryRule rule, std::string_view text);
/// The box after an entry that is not valid.
void sayInvalid();

/// The lower limit is below the upper one; a box says if not.
bool limitsAgree(std::string_view upper, std::string_view lower);
/// The dial has a length, forward or backward, also with the whole number that the start becomes; a
/// box says if not.
bool dialEndsDiffer(std::string_view plus, std::string_view minus);

/// The boxes of the table, lost ones too.
std::vector<std::string> serialTexts();
std::vector<std::string> channelTexts();
std::vector<std::string> averageTexts();
/// What the sample shows with this entry of the list of decimals.
std::string sampleText(int32_t decimals);

/// A record's number as text; the fallback in place of one that is no number.
std::string numberText(float value, float fallback);
/// The list entry that a record's number means, or the nearest there is.
int32_t listIndex(double value, std::size_t count);

}  // namespace vk
