// SPDX-License-Identifier: MIT
#include "template/line_text.h"

#include "base/numbers.h"

namespace kev {

std::string ColourText(const Colour& colour) {
  const std::string red = std::to_string(colour.Red);
  if (colour.Green == -1 && colour.Blue == -1) return red;
  return red + "," + std::to_string(colour.Green) + "," + std::to_string(colour.Blue);
}

std::string LineWidthItem(const ObjectRecord& record) {
  return record.LineWidth == 1 ? ";W=1;" : "W=" + std::to_string(record.LineWidth) + ";";
}

std::string TextBoxPropsOf(const ObjectRecord& record) {
  std::string props = "TBProps=285," + record.FontName + "," + std::to_string(record.FontSize) + ",,," +
                      record.TextBoxFrameValue.value_or("");
  for (const std::int16_t part : {record.ColorR, record.ColorG, record.ColorB, record.BackColorR,
                                  record.BackColorG, record.BackColorB}) {
    props += "," + std::to_string(part);
  }
  return props + "," + (record.TextBoxExtraValue ? FormatNumber(*record.TextBoxExtraValue) : std::string());
}

std::string CommandWord(const ObjectRecord& record) {
  if (record.Content == kPageBreak) return ";\\np";
  if (record.Content == "@@execute") {
    return ";Execute=" + record.ExecuteCommand.Text() + "," + record.ExecuteArg2.Text() + "," +
           record.ExecuteArg3.Text();
  }
  if (record.Content == "@@postshow") return ";PostShow=" + record.ExecuteCommand.Text();
  if (record.Content == "@@page") return ";Page=" + record.CommandPayload.value_or("");
  return {};
}

std::string CaseItems(std::string_view caseMode) {
  if (caseMode == "U") return "Upper=Y;";
  if (caseMode == "L") return "Lower=Y;";
  if (caseMode == "F") return "FirstUp=Y;";
  return "Upper=N;Lower=N;FirstUp=N;";
}

}  // namespace kev
