#pragma once

#include <cstdint>

// Numbers of the message texts in the section "Info" of the language files.
namespace InfoTextNumber {
inline constexpr std::int32_t NoSolidWorks = 0;
inline constexpr std::int32_t NoActiveDocument = 1;
inline constexpr std::int32_t NoPartOrAssembly = 2;
inline constexpr std::int32_t ErrorOccurred = 3;
inline constexpr std::int32_t SaveFailed = 4;
inline constexpr std::int32_t InvalidFormat = 5;
inline constexpr std::int32_t OpenFailed = 6;
inline constexpr std::int32_t DropOnGroupOnly = 7;
inline constexpr std::int32_t RevisionTooLow = 8;
inline constexpr std::int32_t NoPart = 9;
inline constexpr std::int32_t NoAssembly = 10;
inline constexpr std::int32_t ColorLibrary = 20;
inline constexpr std::int32_t ColorLibraries = 21;
inline constexpr std::int32_t AllFiles = 22;
inline constexpr std::int32_t Color = 23;
inline constexpr std::int32_t AskAutoload = 24;
inline constexpr std::int32_t AskCancelAutoload = 25;
inline constexpr std::int32_t Save = 30;
inline constexpr std::int32_t NameOfLibrary = 50;
inline constexpr std::int32_t NameOfGroup = 51;
inline constexpr std::int32_t NameOfColor = 52;
inline constexpr std::int32_t ReadingLibrary = 60;
inline constexpr std::int32_t WritingLibrary = 61;
inline constexpr std::int32_t ClearingPart = 62;
inline constexpr std::int32_t ClearingAssembly = 63;
inline constexpr std::int32_t StandardColors = 70;
inline constexpr std::int32_t StandardColorsDifferInSize = 72;
inline constexpr std::int32_t StandardColorNamesDiffer = 73;
inline constexpr std::int32_t AskContinue = 74;
inline constexpr std::int32_t Attention = 98;
inline constexpr std::int32_t AskDelete = 99;
inline constexpr std::int32_t LibraryLabel = 100;
inline constexpr std::int32_t GroupLabel = 101;
inline constexpr std::int32_t ColorLabel = 102;
inline constexpr std::int32_t LibraryWithoutGroups = 103;
inline constexpr std::int32_t CharactersNotStorable = 104;
inline constexpr std::int32_t PathNotStorable = 105;
inline constexpr std::int32_t NamesNotStorable = 150;
inline constexpr std::int32_t LibraryNameNotStorable = 151;
inline constexpr std::int32_t AskSaveAllTheSame = 152;
inline constexpr std::int32_t EarlierContentKept = 153;
inline constexpr std::int32_t SolidWorksIsBusy = 160;
inline constexpr std::int32_t SolidWorksStopped = 161;
inline constexpr std::int32_t ReadingStandardColors = 162;

// Steps that are taken back and done again; the first four have the step as their argument.
inline constexpr std::int32_t UndoStep = 170;
inline constexpr std::int32_t RedoStep = 171;
inline constexpr std::int32_t StepUndone = 172;
inline constexpr std::int32_t StepRedone = 173;
inline constexpr std::int32_t RenameColor = 174;
inline constexpr std::int32_t MoveColor = 175;
inline constexpr std::int32_t CopyColor = 176;

// What was kept of libraries that were not saved.  %1 in the second: how many.
inline constexpr std::int32_t RecoverLibraries = 180;
inline constexpr std::int32_t CanBeRecovered = 181;
inline constexpr std::int32_t RecoverName = 182;
inline constexpr std::int32_t RecoverFile = 183;
inline constexpr std::int32_t RecoverTime = 184;
inline constexpr std::int32_t RecoverColors = 185;
inline constexpr std::int32_t NeverSaved = 186;
inline constexpr std::int32_t AskForget = 187;
inline constexpr std::int32_t NotKept = 188;
inline constexpr std::int32_t ProgramCrashed = 189; // %1: path of the report

// Finding colors.  %1: how many were found; %2: how many there are.
inline constexpr std::int32_t FindColors = 200;
inline constexpr std::int32_t FoundName = 201;
inline constexpr std::int32_t FoundGroup = 202;
inline constexpr std::int32_t FoundLibrary = 203;
inline constexpr std::int32_t FoundDifference = 204;
inline constexpr std::int32_t FoundOfColors = 205;
inline constexpr std::int32_t NearestOfColors = 206;
inline constexpr std::int32_t ThousandsSign = 207; // in numbers, as the language writes them
inline constexpr std::int32_t DecimalSign = 208;

// Foreign palettes.  Numbers of what is told follow with a colon.
inline constexpr std::int32_t ImportPalettes = 210;
inline constexpr std::int32_t Palettes = 211;
inline constexpr std::int32_t ImportedGroup = 212; // of colors without one
inline constexpr std::int32_t ImportedColors = 213;
inline constexpr std::int32_t NotAllImported = 214;
inline constexpr std::int32_t NothingImported = 248;
inline constexpr std::int32_t PaletteNotOpened = 215;
inline constexpr std::int32_t NoPalette = 216;
inline constexpr std::int32_t EmptyPalette = 217;
inline constexpr std::int32_t FirstInLine = 218; // place of the first one
inline constexpr std::int32_t PaletteUnreadable = 219;
inline constexpr std::int32_t PaletteOutOfRange = 220;
inline constexpr std::int32_t PaletteUnknownModel = 221;
inline constexpr std::int32_t PaletteNameBroken = 222;
inline constexpr std::int32_t PaletteNameCut = 223;
inline constexpr std::int32_t PaletteColumn = 224;
inline constexpr std::int32_t PaletteEnds = 225;
inline constexpr std::int32_t PaletteCount = 226;
inline constexpr std::int32_t PaletteRest = 227;
inline constexpr std::int32_t PaletteLimit = 228;
inline constexpr std::int32_t FirstAtEntry = 229;
inline constexpr std::int32_t ExportPalette = 230;
inline constexpr std::int32_t GimpPalette = 231;
inline constexpr std::int32_t SwatchExchange = 232;
inline constexpr std::int32_t AdobeColor = 233;
inline constexpr std::int32_t ColorTable = 234;
inline constexpr std::int32_t EndingIsNoFormat = 235;
inline constexpr std::int32_t NotHeldByFormat = 236;
inline constexpr std::int32_t LostColors = 237;
inline constexpr std::int32_t LostMaterials = 238;
inline constexpr std::int32_t LostGroups = 239;
inline constexpr std::int32_t LostNames = 240;
inline constexpr std::int32_t LostPaletteName = 241;
inline constexpr std::int32_t ChangedColors = 242;
inline constexpr std::int32_t AskExportAllTheSame = 243;
inline constexpr std::int32_t ExportFailed = 244;   // the path follows
inline constexpr std::int32_t OneColorOfNode = 245; // %1: name
inline constexpr std::int32_t ColorsOfNode = 246;   // %1: name, %2: number of its colors

// The levels that can carry a color in SolidWorks.  Names stand in a row, and in a sentence in the
// form that it needs.
inline constexpr std::int32_t ColorLevels = 250;
inline constexpr std::int32_t LevelColumn = 251;
inline constexpr std::int32_t LevelStateColumn = 252;
inline constexpr std::int32_t LevelIsSeen = 253;
inline constexpr std::int32_t LevelIsCovered = 254;
inline constexpr std::int32_t LevelHasNoColor = 255;
inline constexpr std::int32_t LevelComponent = 256;
inline constexpr std::int32_t LevelFace = 257;
inline constexpr std::int32_t LevelFeature = 258;
inline constexpr std::int32_t LevelBody = 259;
inline constexpr std::int32_t LevelPart = 260;
inline constexpr std::int32_t LevelAssembly = 261;
inline constexpr std::int32_t OfComponent = 262;
inline constexpr std::int32_t OfFace = 263;
inline constexpr std::int32_t OfFeature = 264;
inline constexpr std::int32_t OfBody = 265;
inline constexpr std::int32_t OfPart = 266;
inline constexpr std::int32_t OfAssembly = 267;
inline constexpr std::int32_t OneColorIsSeen = 268;  // %1: of which level
inline constexpr std::int32_t ColorCoversOne = 269;  // %1: that of which level; %2: that of which
inline constexpr std::int32_t ColorCoversMore = 270; // %2: those of which, a list
inline constexpr std::int32_t ListOfLevels = 271;    // %1: all but the last, with commas; %2: it
inline constexpr std::int32_t NoLevelHasColor = 272;
inline constexpr std::int32_t OthersInside = 273;
inline constexpr std::int32_t ModelMissing = 274;
inline constexpr std::int32_t LevelsChanged = 275;
inline constexpr std::int32_t NoLevelsRead = 276;

// What the list says while it has no rows.  %1: the name of a sample.
inline constexpr std::int32_t NoLibraryOpen = 280;
inline constexpr std::int32_t HintOpen = 281;
inline constexpr std::int32_t HintNewLibrary = 282;
inline constexpr std::int32_t HintImport = 283;
inline constexpr std::int32_t HintSample = 284;
inline constexpr std::int32_t HintDropFiles = 285;
inline constexpr std::int32_t LibraryIsEmpty = 286;
inline constexpr std::int32_t HintNewGroup = 287;
inline constexpr std::int32_t HintImportGroups = 288;
inline constexpr std::int32_t GroupIsEmpty = 289;
inline constexpr std::int32_t HintNewColor = 290;
inline constexpr std::int32_t HintPickUp = 291;
inline constexpr std::int32_t HintPaste = 292;
inline constexpr std::int32_t HintRecover = 247;

// By which the controls of the text viewer are announced.
inline constexpr std::int32_t ViewedDocument = 293;
inline constexpr std::int32_t ViewedText = 294;

// Of a failed automation call, where the system has no words; ErrorText.h has the built-in ones.
inline constexpr std::int32_t ServerRejectsCall = 163;
inline constexpr std::int32_t ObjectIsGone = 164;
inline constexpr std::int32_t ServerWantsOtherKind = 165;
inline constexpr std::int32_t ServerLacksMember = 166;
inline constexpr std::int32_t ServerWantsOtherCount = 167;
inline constexpr std::int32_t ServerIsDisconnected = 168;
inline constexpr std::int32_t ServerFails = 169;

// Descriptions in the shared error message; ErrorText.h has their built-in words.
inline constexpr std::int32_t NotANumber = 110;
inline constexpr std::int32_t NumberOutOfRange = 111;
inline constexpr std::int32_t WrongKindOfValue = 112;
inline constexpr std::int32_t NoSuchNumber = 113;
inline constexpr std::int32_t GroupNumberTaken = 114;
inline constexpr std::int32_t NoSuchNode = 115;
inline constexpr std::int32_t ClipboardInUse = 117;
inline constexpr std::int32_t DialogNotShown = 118;
inline constexpr std::int32_t NoSuchProperty = 119;
inline constexpr std::int32_t NoSuchListEntry = 120;
inline constexpr std::int32_t NoSuchButton = 121;
inline constexpr std::int32_t NotNineNumbers = 122;
inline constexpr std::int32_t NoObject = 123;
inline constexpr std::int32_t NoColorForEntry = 124;
inline constexpr std::int32_t StoppedByUser = 125;
inline constexpr std::int32_t StoredSettings = 126;
inline constexpr std::int32_t FileAndLine = 127;
inline constexpr std::int32_t NoWindow = 128;
inline constexpr std::int32_t OutOfMemory = 129;
inline constexpr std::int32_t UnknownError = 130;
inline constexpr std::int32_t TextTooLong = 131;
} // namespace InfoTextNumber
