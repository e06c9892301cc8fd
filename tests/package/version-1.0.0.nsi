; Installs what version 1.0.0 left on a machine, as far as an upgrade meets it: its files, its
; registry entries, its shortcuts and its uninstaller, which takes the settings away unless it is
; told to leave them.  Run by the tests of the packages, which define
;   STAGE      the folder with the files of that version
;   OUTPUT     the installer to make

Unicode true
Target amd64-unicode
RequestExecutionLevel user
SilentInstall silent
!include FileFunc.nsh
!include LogicLib.nsh

!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\TNT4SWX"

Name "TNT4SWX"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\TNT4SWX"

Section
    SetOutPath "$INSTDIR"
    File /r "${STAGE}\*"
    WriteUninstaller "$INSTDIR\uninstall.exe"
    CreateDirectory "$SMPROGRAMS\TNT4SWX"
    CreateShortcut "$SMPROGRAMS\TNT4SWX\TNT4SWX.lnk" "$INSTDIR\tnt4swx.exe"
    CreateShortcut "$SMPROGRAMS\TNT4SWX\Stand-in for SolidWorks.lnk" "$INSTDIR\swx_standin.exe"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "TNT4SWX"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "1.0.0"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
SectionEnd

Section "Uninstall"
    Delete "$INSTDIR\*.exe"
    Delete "$INSTDIR\*.ini"
    Delete "$INSTDIR\*.txt"
    RMDir /r "$INSTDIR\banners"
    Delete "$SMPROGRAMS\TNT4SWX\*.lnk"
    RMDir "$SMPROGRAMS\TNT4SWX"
    DeleteRegKey HKCU "${UNINSTALL_KEY}"
    ${GetParameters} $0
    ClearErrors
    ${GetOptions} $0 "/KEEPSETTINGS" $1
    ${If} ${Errors}
        DeleteRegKey HKCU "SOFTWARE\Chromixs\TNT4SWX"
    ${EndIf}
SectionEnd
