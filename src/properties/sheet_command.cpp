// SPDX-License-Identifier: MIT
// COMMAND. Its arguments stand in other rows for a page number than for the rest; only the rows that carry
// the argument of the command are stored.
#include <array>

#include "document/attribute_state.h"
#include "properties/row_kinds.h"

namespace kev {
namespace {

using R = ObjectRecord;

constexpr RowEditor kCommandList = ClosedList("|@@pagebreak|@@page|@@execute|@@postshow|");
constexpr RowEditor kModeList = ClosedList("|Once|Always|");
constexpr RowEditor kContextList = ClosedList("|Viewer|Printer|Both|");
constexpr RowEditor kViewerCommandList = OpenList(
    "|KEVCMDPRINT|KEVCMDNOPRINT|KEVCMDNEWVIEWER|KEVCMDPRINTSETUP|KEVCMDREFRESH|KEVCMDMOVEWITHHAND"
    "|KEVCMDREFRESHBUTTON|KEVCMDDIRBUTTONS|KEVCMDSIZEBUTTONS|KEVCMDFINDBUTTONS|KEVCMDPRINTBUTTON"
    "|KEVCMDPRINTSETUPBUTTON|KEVCMDMAILBUTTON|KEVCMDOPENBUTTON|KEVCMDSAVEBUTTON|KEVCMDEXPORTBUTTON"
    "|KEVCMDSTATUSBAR|KEVCMDSCROLLBARS|KEVCMDTOOLBAR|KEVCMDADDRESSBAR|KEVCMDSECTIONBAR|KEVCMDTEMPLATEBAR"
    "|KEVCMDMINIMIZE|KEVCMDMOVEWINDOW|KEVCMDFIRSTPAGE|KEVCMDPREVIOUSPAGE|KEVCMDNEXTPAGE|KEVCMDLASTPAGE"
    "|KEVCMDGOTOPAGE|KEVCMDGOTOSECTION|KEVCMDEXECUTEANDEXIT|KEVCMDEXITVIEWER|KEVCMDPROMPTEXITVIEWER"
    "|KEVCMDLOADREPORT|KEVCMDSENDBYMAIL|KEVCMDWAIT|KEVCMDZOOMIN|KEVCMDZOOMOUT|KEVCMDZOOM|KEVCMDSCROLL"
    "|KEVCMDSCROLLBOTTOM|KEVCMDSEARCHDIALOG|KEVCMDFIND|");

bool HasArguments(const RowSource& source) {
  return source.Record().Content != kPageBreak;
}

// The floating form does not know "@@base64".
bool IsCarriedByValue(const RowTarget& target) {
  const std::string& content = target.Record().Content;
  return content == "@@page" || (content == "@@base64" && target.work.place == SheetPlace::Docked);
}

void StoreCommand(const RowTarget& target, std::string_view text) {
  StoreContent(target, Trim(text));
}

template <auto Field>
void StoreArgument(const RowTarget& target, std::string_view text) {
  if (target.Record().Content != kPageBreak && !IsCarriedByValue(target)) StoreTrimmed<Field>(target, text);
}

void StoreValue(const RowTarget& target, std::string_view text) {
  if (IsCarriedByValue(target)) StoreOptional<&R::CommandPayload>(target, text);
}

template <auto Field>
constexpr ObjectRow ArgumentRow(std::string_view caption, RowEditor editor, int description) {
  ObjectRow row = {caption, editor, ReadText<Field>, StoreArgument<Field>, nullptr, description};
  row.enabled = HasArguments;
  return row;
}

// The descriptions of rows 5 to 7 belong to the rows behind them, and always have.
constexpr auto kRows = std::to_array<ObjectRow>({
    {"Command", kCommandList, ReadText<&R::Content>, StoreCommand, nullptr, kTextDescribeCommand},
    ArgumentRow<&R::ExecuteCommand>("Execute", kViewerCommandList, kTextDescribeExecute),
    ArgumentRow<&R::ExecuteArg2>("Mode", kModeList, kTextDescribeMode),
    ArgumentRow<&R::ExecuteArg3>("Context", kContextList, kTextDescribeContext),
    {"Value", kPlainText, ReadOptional<&R::CommandPayload>, StoreValue, nullptr, kTextDescribeXColumn},
    XRow(kTextDescribeYPosition, CheckXNotNegative),
    YRow(kTextDescribeAlignToGrid),
    Only(RowPlace::DockedOnly, GridRow(0)),
    EndUserRow(),
    Only(RowPlace::FloatingOnly, GridRow(0)),
});

}  // namespace

constexpr ObjectSheet kCommandSheet = {kTextSheetCommand, kRows};

}  // namespace kev
