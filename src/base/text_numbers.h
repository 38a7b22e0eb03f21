// SPDX-License-Identifier: MIT
// Numbers of the texts in Kev.lng, in the order of the language source. A text whose number is not here is
// not used.
#pragma once

namespace kev {

// Boxes of the template file and the test run
inline constexpr int kTextSampleFileMissing = 41;

// Menu bar
inline constexpr int kTextMenuFile = 100;
inline constexpr int kTextMenuEdit = 101;
inline constexpr int kTextMenuInsert = 102;
inline constexpr int kTextMenuView = 103;
inline constexpr int kTextMenuColumns = 104;
inline constexpr int kTextMenuReport = 105;
inline constexpr int kTextMenuHelp = 106;

// Help and language menu
inline constexpr int kTextMenuDocumentation = 107;
inline constexpr int kTextMenuLanguage = 108;
inline constexpr int kTextLanguageAtNextStart = 109;

// File menu
inline constexpr int kTextMenuNew = 110;
inline constexpr int kTextMenuNewFromData = 111;
inline constexpr int kTextMenuOpen = 112;
inline constexpr int kTextMenuSave = 113;
inline constexpr int kTextMenuSaveAs = 114;
inline constexpr int kTextMenuTestRun = 115;
inline constexpr int kTextMenuShowCode = 116;
inline constexpr int kTextMenuShowData = 117;
inline constexpr int kTextMenuDocumentProperties = 118;
inline constexpr int kTextMenuExit = 119;

// Edit menu
inline constexpr int kTextMenuUndo = 120;
inline constexpr int kTextMenuRedo = 121;
inline constexpr int kTextMenuCut = 122;
inline constexpr int kTextMenuCopy = 123;
inline constexpr int kTextMenuPaste = 124;
inline constexpr int kTextMenuDelete = 125;
inline constexpr int kTextMenuDeleteSelection = 126;
inline constexpr int kTextMenuSelectAll = 127;
inline constexpr int kTextMenuMoveUp = 128;
inline constexpr int kTextMenuMoveDown = 129;

// Insert menu
inline constexpr int kTextMenuLabel = 130;
inline constexpr int kTextMenuNextVariable = 131;
inline constexpr int kTextMenuTextBox = 132;
inline constexpr int kTextMenuPicture = 133;
inline constexpr int kTextMenuBox = 134;
inline constexpr int kTextMenuHorizontalLine = 135;
inline constexpr int kTextMenuLine = 136;
inline constexpr int kTextMenuCircle = 137;
inline constexpr int kTextMenuBarcode = 138;
inline constexpr int kTextMenuQrCode = 139;
inline constexpr int kTextMenuChart = 140;
inline constexpr int kTextMenuPageBreak = 141;
inline constexpr int kTextMenuExecuteCommand = 142;
inline constexpr int kTextMenuPostShowCommand = 143;
inline constexpr int kTextMenuSubsection = 144;

// Tools without a caption of their own
inline constexpr int kTextToolFont = 145;
inline constexpr int kTextToolFontSize = 146;
inline constexpr int kTextToolFontColor = 147;
inline constexpr int kTextToolColumn = 148;

// Column commands
inline constexpr int kTextMenuSetColumns = 150;
inline constexpr int kTextMenuInsertColumnHere = 151;
inline constexpr int kTextMenuRemoveColumn = 152;
inline constexpr int kTextMenuSetColumn = 153;
inline constexpr int kTextMenuOrganizeColumns = 154;

// Kinds of files in the choosers
inline constexpr int kTextFilesPlain = 155;
inline constexpr int kTextFilesEncoded = 156;
inline constexpr int kTextFilesData = 157;
inline constexpr int kTextFilesPicture = 158;
inline constexpr int kTextFilesAll = 159;

// Group menu
inline constexpr int kTextMenuAlignHorizontally = 160;
inline constexpr int kTextMenuPlaceAt = 161;
inline constexpr int kTextMenuAlignToGrid = 162;
inline constexpr int kTextMenuModifiable = 163;
inline constexpr int kTextMenuPrintOrNot = 164;

// View menu
inline constexpr int kTextMenuProperties = 165;
inline constexpr int kTextMenuQuickPanel = 166;
inline constexpr int kTextMenuDrawGrid = 167;
inline constexpr int kTextMenuZoom = 168;
inline constexpr int kTextMenuFindings = 169;

// Page filters, multi-selection
inline constexpr int kTextFilterAll = 170;
inline constexpr int kTextFilterEndUser = 171;
inline constexpr int kTextFilterPrint = 172;
inline constexpr int kTextMultiSelected = 173;
inline constexpr int kTextNoFindings = 174;

// Subsection dialog
inline constexpr int kTextSubsectionDialog = 180;
inline constexpr int kTextSubsectionSection = 181;
inline constexpr int kTextSubsectionName = 182;
inline constexpr int kTextSubsectionRecordTypes = 183;
inline constexpr int kTextSubsectionFields = 184;
inline constexpr int kTextSubsectionStartsAt = 185;
inline constexpr int kTextSubsectionAtCurrent = 186;
inline constexpr int kTextSubsectionNew = 187;
inline constexpr int kTextSubsectionExisting = 188;

// New template assistant
inline constexpr int kTextAssistantDialog = 190;
inline constexpr int kTextAssistantNothing = 191;
inline constexpr int kTextAssistantKex = 192;
inline constexpr int kTextAssistantKed = 193;
inline constexpr int kTextAssistantDataFile = 194;
inline constexpr int kTextAssistantBrowse = 195;
inline constexpr int kTextAssistantEdit = 196;
inline constexpr int kTextAssistantReload = 197;
inline constexpr int kTextAssistantCreate = 198;
inline constexpr int kTextAssistantCounts = 199;

// Welcome screen
inline constexpr int kTextWelcomeDialog = 200;
inline constexpr int kTextWelcomeRecent = 201;
inline constexpr int kTextWelcomeNotAgain = 202;
inline constexpr int kTextWelcomeOpen = 203;
inline constexpr int kTextWelcomePreview = 204;
inline constexpr int kTextWelcomeNew = 205;
inline constexpr int kTextWelcomeOpenOther = 206;
inline constexpr int kTextWelcomeNoRecent = 207;
inline constexpr int kTextWelcomeNoPicture = 208;
inline constexpr int kTextCloseButton = 209;

// Facts about the document
inline constexpr int kTextFactsDialog = 210;
inline constexpr int kTextFactsTitle = 211;
inline constexpr int kTextFactsFile = 212;
inline constexpr int kTextFactsObjects = 213;
inline constexpr int kTextFactsSubsections = 214;
inline constexpr int kTextFactsFormat = 215;
inline constexpr int kTextFactsEditable = 216;
inline constexpr int kTextFactsWhoMayEdit = 217;
inline constexpr int kTextFactsYesOrNo = 218;

// Recovery dialog
inline constexpr int kTextRecoverDialog = 220;
inline constexpr int kTextRecoverHint = 221;
inline constexpr int kTextRecoverOne = 222;
inline constexpr int kTextRecoverDelete = 223;
inline constexpr int kTextRecoverDeleteAll = 224;
inline constexpr int kTextRecoverContinue = 225;
inline constexpr int kTextRecoverSaveAs = 226;

// Group dialogs
inline constexpr int kTextPlaceDialog = 230;
inline constexpr int kTextPlaceVertical = 231;
inline constexpr int kTextPlaceHorizontal = 232;
inline constexpr int kTextGridSnapNow = 233;
inline constexpr int kTextGridSetProperty = 234;
inline constexpr int kTextGridYes = 235;
inline constexpr int kTextGridNo = 236;
inline constexpr int kTextGridDone = 237;
inline constexpr int kTextGroupModifiable = 238;
inline constexpr int kTextGroupNotModifiable = 239;
inline constexpr int kTextGroupPrint = 240;
inline constexpr int kTextGroupNoPrint = 241;
// Beside them
inline constexpr int kTextPasteRefused = 350;
inline constexpr int kTextGridPropertySet = 351;

// Chart wizard: caption and its four pages
inline constexpr int kTextChartDialog = 250;
inline constexpr int kTextChartPageGeneral = 251;
inline constexpr int kTextChartPageSeries = 252;
inline constexpr int kTextChartPageTexts = 253;
inline constexpr int kTextChartPageColors = 254;

// Chart wizard: title, size, place, kind
inline constexpr int kTextChartTitle = 255;
inline constexpr int kTextChartFont = 256;
inline constexpr int kTextChartFontSize = 257;
inline constexpr int kTextChartColor = 258;
inline constexpr int kTextChartBold = 259;
inline constexpr int kTextChartItalic = 260;
inline constexpr int kTextChartUnderline = 261;
inline constexpr int kTextChartWidth = 262;
inline constexpr int kTextChartHeight = 263;
inline constexpr int kTextChartX = 264;
inline constexpr int kTextChartY = 265;
inline constexpr int kTextChartKind = 266;
inline constexpr int kTextChart2D = 267;
inline constexpr int kTextChart3D = 268;
inline constexpr int kTextChartPie = 269;

// Chart wizard: series
inline constexpr int kTextChartSeriesCount = 270;
inline constexpr int kTextChartSeriesName = 271;
inline constexpr int kTextChartSeriesValues = 272;
inline constexpr int kTextChartSeriesFormat = 273;
inline constexpr int kTextChartSeriesType = 274;
inline constexpr int kTextChartSeriesShow = 275;

// Chart wizard: labels, axes, texts of the values
inline constexpr int kTextChartLabels = 276;
inline constexpr int kTextChartAxes = 277;
inline constexpr int kTextChartAxisBackground = 278;
inline constexpr int kTextChartAxisStyle = 279;
inline constexpr int kTextChartAxisColor1 = 280;
inline constexpr int kTextChartAxisColor2 = 281;
inline constexpr int kTextChartValueTexts = 282;
inline constexpr int kTextChartSeriesTitles = 283;
inline constexpr int kTextChartPieValues = 284;

// Chart wizard: background and pie colours
inline constexpr int kTextChartBackground = 285;
inline constexpr int kTextChartGradient = 286;
inline constexpr int kTextChartPicture = 287;
inline constexpr int kTextChartCompose = 288;
inline constexpr int kTextChartBrowse = 289;
inline constexpr int kTextChartPieColor = 290;

// Background composer and colour picker
inline constexpr int kTextBackgroundDialog = 291;
inline constexpr int kTextBackgroundFirst = 292;
inline constexpr int kTextBackgroundSecond = 293;
inline constexpr int kTextColorDialog = 294;
inline constexpr int kTextColorRed = 295;
inline constexpr int kTextColorGreen = 296;
inline constexpr int kTextColorBlue = 297;
inline constexpr int kTextColorPalette = 298;
inline constexpr int kTextColorResult = 299;

// The window that shows a picture
inline constexpr int kTextPictureUnreadable = 305;
// Chart wizard: what has no label of its own
inline constexpr int kTextChartSizeAndPlace = 320;
inline constexpr int kTextChartPreview = 321;
inline constexpr int kTextChartShowPicture = 322;
inline constexpr int kTextChartChooseColor = 323;

// Buttons of all dialogs
inline constexpr int kTextOk = 642;
inline constexpr int kTextCancel = 643;

// Window caption, reading, saving, sections
inline constexpr int kTextProgramTitle = 760;
inline constexpr int kTextModified = 761;
inline constexpr int kTextReadFailed = 762;
inline constexpr int kTextSaveChanges = 763;
inline constexpr int kTextNoSubsectionHere = 764;
inline constexpr int kTextDeleteFilledSubsection = 765;
inline constexpr int kTextSectionTooShort = 766;
inline constexpr int kTextTestDataMissing = 769;
inline constexpr int kTextColumnsOrganized = 771;
inline constexpr int kTextNotWithSection = 772;
inline constexpr int kTextPictureRefused = 775;
inline constexpr int kTextColumnPositionRefused = 777;
inline constexpr int kTextBlockCharacterRefused = 786;
inline constexpr int kTextBlockCharactersEqual = 787;
inline constexpr int kTextNegativeValue = 794;

// Tooltips of the edit tools
inline constexpr int kTextTipUndo = 803;
inline constexpr int kTextTipRedo = 804;
inline constexpr int kTextTipCut = 805;
inline constexpr int kTextTipCopy = 806;

// Column dialog, document sheet, status bar
inline constexpr int kTextColumnsDialog = 810;
inline constexpr int kTextSheetDocument = 811;
inline constexpr int kTextObjectsSelected = 827;

// Descriptions of the rows of the document sheet
inline constexpr int kTextDescribeReportTitle = 828;
inline constexpr int kTextDescribeOrientation = 829;
inline constexpr int kTextDescribeSampleFile = 830;
inline constexpr int kTextDescribePaperSize = 831;
inline constexpr int kTextDescribeTopMargin = 832;
inline constexpr int kTextDescribeLeftMargin = 833;
inline constexpr int kTextDescribePrintedTopMargin = 834;
inline constexpr int kTextDescribePrintedLeftMargin = 835;
inline constexpr int kTextDescribeMaxY = 836;
inline constexpr int kTextDescribeDecimalPoint = 837;
inline constexpr int kTextDescribeConversion = 838;
inline constexpr int kTextDescribeDataConversion = 839;
inline constexpr int kTextDescribeSaveAllowed = 840;
inline constexpr int kTextDescribePrintAllowed = 841;
inline constexpr int kTextDescribeExportAllowed = 842;
inline constexpr int kTextDescribeLinkTips = 843;
inline constexpr int kTextDescribeOpen = 844;
inline constexpr int kTextDescribeClose = 845;
inline constexpr int kTextDescribeMailTo = 846;
inline constexpr int kTextDescribePageLength = 847;
inline constexpr int kTextDescribePageWidth = 848;
inline constexpr int kTextDescribeCopies = 849;
inline constexpr int kTextDescribeSpacing = 850;
inline constexpr int kTextDescribePagAux = 851;
inline constexpr int kTextDescribeZoomToPrint = 852;
inline constexpr int kTextDescribeViewerOptions = 853;

// Descriptions of the rows of the object sheets
inline constexpr int kTextDescribeExpression = 854;
inline constexpr int kTextDescribeXColumn = 855;
inline constexpr int kTextDescribeYPosition = 856;
inline constexpr int kTextDescribeAlignment = 857;
inline constexpr int kTextDescribeHyperlink = 858;
inline constexpr int kTextDescribeAlignToGrid = 859;
inline constexpr int kTextDescribePrintAtRuntime = 860;
inline constexpr int kTextDescribeFont = 861;
inline constexpr int kTextDescribeFontUnderline = 862;
inline constexpr int kTextDescribeFontStrike = 863;
inline constexpr int kTextDescribeColor = 864;
inline constexpr int kTextDescribeFormat = 865;
inline constexpr int kTextDescribeTextConversion = 866;
inline constexpr int kTextDescribeDiameter = 867;
inline constexpr int kTextDescribeLineWidth = 868;
inline constexpr int kTextDescribeWidth = 869;
inline constexpr int kTextDescribeHeight = 870;
inline constexpr int kTextDescribeFilledBox = 871;
inline constexpr int kTextDescribeDashedLine = 872;
inline constexpr int kTextDescribeXPlus = 873;
inline constexpr int kTextDescribeYPlus = 874;
inline constexpr int kTextDescribePictureFile = 875;
inline constexpr int kTextDescribeCommand = 876;
inline constexpr int kTextDescribeExecute = 877;
inline constexpr int kTextDescribeMode = 878;
inline constexpr int kTextDescribeContext = 879;
inline constexpr int kTextDescribeBarcodeType = 881;
inline constexpr int kTextDescribeSampleValue = 882;
inline constexpr int kTextDescribeBarWidth = 883;
inline constexpr int kTextDescribeVertical = 884;

// Box of the section sheet
inline constexpr int kTextSectionHeightRefused = 885;

// Tooltips of the other tools
inline constexpr int kTextTipProperties = 888;
inline constexpr int kTextTipTestRun = 889;
inline constexpr int kTextTipNewTemplate = 893;
inline constexpr int kTextTipSave = 895;
inline constexpr int kTextTipInsertLabel = 896;
inline constexpr int kTextTipInsertPicture = 897;
inline constexpr int kTextTipInsertBox = 899;
inline constexpr int kTextTipInsertCode = 900;
inline constexpr int kTextTipFontBold = 901;
inline constexpr int kTextTipFontUnderline = 902;
inline constexpr int kTextTipAlignLeft = 903;
inline constexpr int kTextTipAlignCentre = 904;
inline constexpr int kTextTipAlignRight = 905;
inline constexpr int kTextTipInsertAnyLine = 906;
inline constexpr int kTextTipInsertCommand = 907;
inline constexpr int kTextTipInsertChart = 908;
inline constexpr int kTextTipInsertHorizontalLine = 909;
inline constexpr int kTextTipInsertNextVariable = 910;

// Titles of the sheets
inline constexpr int kTextSheetChart = 915;
inline constexpr int kTextSheetLabel = 916;
inline constexpr int kTextSheetBoxOrQr = 917;
inline constexpr int kTextSheetCircle = 918;
inline constexpr int kTextSheetBarcode = 919;
inline constexpr int kTextSheetLine = 920;
inline constexpr int kTextSheetAnyLine = 921;
inline constexpr int kTextSheetCommand = 922;
inline constexpr int kTextSheetSection = 923;
inline constexpr int kTextSheetSubsection = 924;
inline constexpr int kTextSheetPicture = 925;

// Refused values
inline constexpr int kTextPositionOutsideSection = 927;
inline constexpr int kTextEmptyTextRefused = 928;
inline constexpr int kTextLineWidthRefused = 929;
inline constexpr int kTextEndBarStays = 930;
inline constexpr int kTextDescribePrinter = 931;
inline constexpr int kTextPositionRefused = 932;
inline constexpr int kTextBaseSectionStays = 933;

// Files refused, status line
inline constexpr int kTextNotATemplate = 934;
inline constexpr int kTextNoHeader = 935;
inline constexpr int kTextWrongStructure = 936;
inline constexpr int kTextFileMissing = 937;
inline constexpr int kTextStatusReady = 938;
inline constexpr int kTextStatusSaving = 939;
inline constexpr int kTextStatusReading = 940;
inline constexpr int kTextStatusReadingObject = 941;

// Columns
inline constexpr int kTextOrganizeUsedColumns = 943;
inline constexpr int kTextRenameUsedColumn = 944;
inline constexpr int kTextColumnNameTaken = 945;
inline constexpr int kTextColumnNameRefused = 946;
inline constexpr int kTextSetColumnDialog = 947;
inline constexpr int kTextColumnName = 948;
inline constexpr int kTextColumnPosition = 949;
inline constexpr int kTextColumnRemove = 955;
inline constexpr int kTextColumnOrganize = 956;

// Sample data
inline constexpr int kTextNoSampleFile = 961;
inline constexpr int kTextSampleFileNotOpened = 962;
inline constexpr int kTextColumnAdd = 989;
inline constexpr int kTextColumnModify = 990;
inline constexpr int kTextFieldWord = 991;
inline constexpr int kTextSampleFileExtension = 995;
inline constexpr int kTextSampleFileHead = 996;
inline constexpr int kTextKexLineBad = 997;
inline constexpr int kTextKedLineBad = 998;
inline constexpr int kTextOpenedWithoutChecks = 1000;
inline constexpr int kTextDescribeCharset = 1001;
inline constexpr int kTextDescribeSendPaper = 1002;
inline constexpr int kTextDescribeFitToPaper = 1003;
inline constexpr int kTextDeleteAllRecovered = 1006;

// Quick panel
inline constexpr int kTextQuickLabel = 1008;
inline constexpr int kTextQuickFields = 1009;
inline constexpr int kTextQuickFunctions = 1010;
inline constexpr int kTextQuickSampleValues = 1011;
inline constexpr int kTextQuickRecordsShown = 1012;
inline constexpr int kTextQuickApply = 340;
inline constexpr int kTextQuickAddField = 341;
inline constexpr int kTextQuickAddFunction = 342;
inline constexpr int kTextQuickContent = 343;
inline constexpr int kTextQuickPanel = 344;

// Checks of the new template assistant
inline constexpr int kTextAssistantGood = 1025;
inline constexpr int kTextAssistantBad = 1026;
inline constexpr int kTextLineWord = 1027;
inline constexpr int kTextUnicodeMark = 330;
inline constexpr int kTextCheckStopped = 331;
inline constexpr int kTextVariableCount = 332;
inline constexpr int kTextReadingSample = 333;

// Later rows, dialogs and boxes
inline constexpr int kTextDescribeWidthAtRuntime = 1037;
inline constexpr int kTextDescribeHeightAtRuntime = 1038;
inline constexpr int kTextDescribePreviewOnServer = 1040;
inline constexpr int kTextDescribePreviewAt = 1041;
inline constexpr int kTextDescribePdfFromServer = 1042;
inline constexpr int kTextDescribePdfName = 1043;
inline constexpr int kTextDescribeXlsType = 1044;
inline constexpr int kTextColumnsHint = 1054;
inline constexpr int kTextObjectsTooFarApart = 1085;
inline constexpr int kTextSheetTextBox = 1130;
inline constexpr int kTextDescribeStretchText = 1220;

// Messages on what a file, a folder or a character can't do
inline constexpr int kTextCharacterNotInPage = 1221;
inline constexpr int kTextFolderMissing = 1222;
inline constexpr int kTextOperationFailed = 1223;
inline constexpr int kTextWriteFailed = 1224;
inline constexpr int kTextSavedWithFindings = 1225;
inline constexpr int kTextSampleNotCopied = 328;
inline constexpr int kTextProgramNotStarted = 1226;
inline constexpr int kTextSubsectionNameRefused = 1227;
inline constexpr int kTextTestDataKindUnknown = 1228;
inline constexpr int kTextYesToAll = 1229;
inline constexpr int kTextRecordTooLong = 1230;
inline constexpr int kTextStop = 1231;
inline constexpr int kTextReadBackDiffers = 1232;
inline constexpr int kTextQuickNoDataFile = 1233;
inline constexpr int kTextRelativeFilesMissing = 1234;

// Help
inline constexpr int kTextDocumentationNotOpened = 1266;

// Kinds of findings
inline constexpr int kTextFindingUnknownKey = 1235;
inline constexpr int kTextFindingLostText = 1236;
inline constexpr int kTextFindingDisarmedBlock = 1237;
inline constexpr int kTextFindingLateKey = 1238;
inline constexpr int kTextFindingRepeatedKey = 1239;
inline constexpr int kTextFindingDanglingColumn = 1240;
inline constexpr int kTextFindingValueOutOfRange = 1241;
inline constexpr int kTextFindingWillNotComeBack = 1242;
inline constexpr int kTextFindingMissingFile = 1243;
inline constexpr int kTextFindingValueChanges = 1244;
inline constexpr int kTextFindingObjectLost = 1245;
inline constexpr int kTextFindingObjectAppears = 1246;
inline constexpr int kTextFindingKindChanges = 1247;
inline constexpr int kTextFindingColumnLost = 1248;
inline constexpr int kTextFindingColumnAppears = 1249;
inline constexpr int kTextFindingPaintingStops = 300;
inline constexpr int kTextFindingNameWithColon = 334;
inline constexpr int kTextFindingPastPage = 324;
inline constexpr int kTextFindingOutsideBodies = 325;
inline constexpr int kTextFindingMovesSubsection = 326;
inline constexpr int kTextFindingRewriteDiffers = 327;

// Reasons, behind 762, 1223 and 1224
inline constexpr int kTextReasonOutOfMemory = 1250;
inline constexpr int kTextReasonNotRegularFile = 1251;
inline constexpr int kTextReasonTooManyObjects = 1252;
inline constexpr int kTextReasonTooManyColumns = 1253;
inline constexpr int kTextReasonTooManyParts = 1254;
inline constexpr int kTextReasonTextsTooLarge = 1255;
inline constexpr int kTextReasonBlocksTooOften = 1256;

inline constexpr int kTextReasonPackedDamaged = 370;
inline constexpr int kTextReasonPackedTooLarge = 371;
inline constexpr int kTextReasonNotPacked = 372;

// Two programs with one template
inline constexpr int kTextOpenElsewhere = 360;
inline constexpr int kTextChangedElsewhere = 361;
inline constexpr int kTextReplaceOpenElsewhere = 362;

// Behind a save that is done
inline constexpr int kTextSavedNotAll = 363;

// Recent files
inline constexpr int kTextRecentNotStored = 373;

// What needs a folder, behind 1222
inline constexpr int kTextFolderRoleWork = 1260;
inline constexpr int kTextFolderRoleCache = 1261;
inline constexpr int kTextFolderRoleUnpacking = 1262;
inline constexpr int kTextFolderRoleData = 1263;
inline constexpr int kTextFolderRoleRecent = 1264;

// Settings of the user
inline constexpr int kTextUnknownSettings = 1265;

// Accessible names of what has no caption
inline constexpr int kTextPage = 1267;
inline constexpr int kTextScrollVertical = 1268;
inline constexpr int kTextScrollHorizontal = 1269;
inline constexpr int kTextTools = 1270;
inline constexpr int kTextClosePanel = 1299;
inline constexpr int kTextRulerHorizontal = 1280;
inline constexpr int kTextRulerVertical = 1281;
inline constexpr int kTextPanelDivider = 1282;
inline constexpr int kTextEndOfSubsection = 310;

// Tooltip of the horizontal ruler
inline constexpr int kTextRulerNextUnit = 1283;

// The dialog of a subsection, beside 180 to 188 and 1227
inline constexpr int kTextSubsectionInsert = 1284;
inline constexpr int kTextSubsectionNameMissing = 1285;
inline constexpr int kTextSubsectionNameUsed = 1286;
inline constexpr int kTextSubsectionFieldRefused = 1287;
inline constexpr int kTextSubsectionTooManyFields = 1288;
inline constexpr int kTextSubsectionNoRecordTypes = 1289;

// Columns of `File1` in Recover_form
inline constexpr int kTextRecoverTemplate = 1271;
inline constexpr int kTextRecoverLastChange = 1272;

}  // namespace kev
