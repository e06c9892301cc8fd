#pragma once

// Numbers of controls and menu entries, shared by the code, the resource script and the tests.
// The id of every child window is its control's number here.  A control array takes the numbers
// from its own upwards.

// frmMain
#define IDC_tlbarMain 1001
#define IDC_tvColor 1002
#define IDC_lvColor 1003
#define IDC_imgSplitter 1004
#define IDC_picSplitter 1005
#define IDC_fraShowColor 1006
#define IDC_lblActiveColor 1007
#define IDC_lblActiveColorName 1008
#define IDC_lblActiveColorSmall 1009
#define IDC_stbarMain 1010
#define IDC_picSponsor 1011
#define IDC_lblDrag 1012
#define IDC_txtActiveColor 1100 // 0..8
#define IDC_sldActiveColor 1110 // 0..8
#define IDC_lblRed 1120
#define IDC_lblGreen 1121
#define IDC_lblBlue 1122
#define IDC_lblAmbient 1123
#define IDC_lblDiffuse 1124
#define IDC_lblSpecular 1125
#define IDC_lblShininess 1126
#define IDC_lblTransparency 1127
#define IDC_lblEmission 1128

// frmAbout
#define IDC_picIcon 1201
#define IDC_lblTitle 1202
#define IDC_lblVersion 1203
#define IDC_lblDescription 1204
#define IDC_lblDisclaimer 1205
#define IDC_lblLinkHomepage 1206
#define IDC_lblMail 1207
#define IDC_cmdSysInfo 1208
#define IDC_cmdOK 1209
#define IDC_picSponsorAbout 1210

// frmTxtView
#define IDC_cmbTxtView 1301
#define IDC_rtbShowtext 1302
#define IDC_cmdOkay 1303
#define IDC_picSponsorTxtView 1304
#define IDC_lblChoice 1305
#define IDC_lblText 1306

// frmProgress
#define IDC_prbMain 1401
#define IDC_lblInfo 1402
#define IDC_cmdCancel 1403

// frmRecover
#define IDC_lblRecover 1501
#define IDC_lvRecover 1502
#define IDC_cmdOpen 1503
#define IDC_cmdDelete 1504
#define IDC_cmdEmpty 1505
#define IDC_cmdClose 1506
#define IDC_cmdOpenAll 1507

// frmFind
#define IDC_lblFind 1601
#define IDC_txtFind 1602
#define IDC_chkLikeActive 1603
#define IDC_lblLikeActive 1604
#define IDC_lvFind 1605
#define IDC_cmdShow 1606
#define IDC_cmdCloseFind 1607
#define IDC_stbarFind 1608

// frmLevels
#define IDC_lblLevels 1701
#define IDC_lvLevels 1702
#define IDC_cmdTakeLevel 1703 // this one and the next are commands, too
#define IDC_cmdClearLevel 1704
#define IDC_cmdReadLevels 1705
#define IDC_cmdCloseLevels 1706

// Menu entries; the number of a command everywhere
#define IDM_mnuFile 2001
#define IDM_mnuFileNew 2002
#define IDM_mnuFileOpen 2003
#define IDM_mnuFileSave 2004
#define IDM_mnuFileSaveAs 2005
#define IDM_mnuFileClose 2006
#define IDM_mnuFileCancelAutoload 2007
#define IDM_mnuFileHR 2008
#define IDM_mnuQuit 2009
#define IDM_mnuColor 2010
#define IDM_mnuColorNewMainNode 2011
#define IDM_mnuColorNewGroup 2012
#define IDM_mnuColorNewColor 2013
#define IDM_mnuColorHR1 2014
#define IDM_mnuColorRenameNode 2015
#define IDM_mnuColorHR2 2016
#define IDM_mnuColorDelMainNode 2017
#define IDM_mnuColorDelGroup 2018
#define IDM_mnuColorDelColor 2019
#define IDM_mnuColorHR3 2020
#define IDM_mnuColorCopy 2021
#define IDM_mnuColorCut 2022
#define IDM_mnuColorPaste 2023
#define IDM_mnuColorHR4 2024
#define IDM_mnuColorChange 2025
#define IDM_mnuColorUpdateColor 2026
#define IDM_mnuView 2027
#define IDM_mnuViewToolbar 2028
#define IDM_mnuViewStatusBar 2029
#define IDM_mnuViewBarStandards 2030
#define IDM_mnuViewBarColor 2031
#define IDM_mnuViewBarListview 2032
#define IDM_mnuViewBarSolidWorks 2033
#define IDM_mnuViewHR1 2034
#define IDM_mnuViewHugeColorDialog 2035
#define IDM_mnuViewHR2 2036
#define IDM_mnuViewColorLargeIcons 2037
#define IDM_mnuViewColorSmallIcons 2038
#define IDM_mnuViewColorList 2039
#define IDM_mnuViewColorDetails 2040
#define IDM_mnuSWX 2041
#define IDM_mnuSWXGetColor 2042
#define IDM_mnuSWXNewColorUpdate 2043
#define IDM_mnuSWXHR1 2044
#define IDM_mnuSWXSetColor 2045
#define IDM_mnuSWXSetColorComponent 2046
#define IDM_mnuSWXHR2 2047
#define IDM_mnuSWXClearColorFromSelection 2048
#define IDM_mnuSWXClearComponentColorFromSelection 2049
#define IDM_mnuSWXClearColorPart 2050
#define IDM_mnuSWXClearColorAssembly 2051
#define IDM_mnuSWXHR3 2052
#define IDM_mnuSWXGetStandardColor 2053
#define IDM_mnuSWXSetStandardColor 2054
#define IDM_mnuOptions 2055
#define IDM_mnuOptionsLanguage 2056
#define IDM_mnuOptionsLngGerman 2057
#define IDM_mnuOptionsLngEnglish 2058
#define IDM_mnuOptionsConfirmDel 2059
#define IDM_mnuOptionsCreateBackups 2060
#define IDM_mnuOptionsAlwaysOnTop 2061
#define IDM_mnuOptionsHR 2062
#define IDM_mnuOptionsSaveSettings 2063
#define IDM_mnuHlp 2064
#define IDM_mnuHlpAbout 2065
#define IDM_mnuHlpShowReadme 2066
#define IDM_mnuHlpShowLizenz 2067
#define IDM_mnuEdit 2068
#define IDM_mnuEditUndo 2069
#define IDM_mnuEditRedo 2070
#define IDM_mnuFileHR2 2071
#define IDM_mnuFileRecover 2072
#define IDM_mnuFileHR3 2073
#define IDM_mnuFileImport 2074
#define IDM_mnuFileImportGroups 2075
#define IDM_mnuFileExport 2076
#define IDM_mnuViewColorsInList 2077
#define IDM_mnuViewHR3 2078
#define IDM_mnuEditHR1 2079
#define IDM_mnuEditFind 2080
#define IDM_mnuEditFindNext 2081
#define IDM_mnuEditFindPrevious 2082
#define IDM_mnuViewMaterialPreview 2083
#define IDM_mnuSWXColorLevels 2084
#define IDM_mnuSWXHR4 2085

// Icons and pictures
#define IDI_tnt4swx 1
#define IDI_swx_standin 1
