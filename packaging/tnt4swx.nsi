; The installer: for the user who runs it, without administrator rights, in German or English by the
; language of the system.  Run by tools/make-packages.py, which defines
;   VERSION    as in CMakeLists.txt, three numbers
;   STAGE      the folder with the program's files; lists.nsh beside them names each file
;   OUTPUT     the installer to make

Unicode true
Target amd64-unicode
ManifestDPIAware true
SetCompressor /SOLID lzma
RequestExecutionLevel user

!include MUI2.nsh
!include FileFunc.nsh
!include LogicLib.nsh

!define TITLE "TNT4SWX"
!define PUBLISHER "Chromixs"
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\${TITLE}"

Name "${TITLE}"
OutFile "${OUTPUT}"
BrandingText "${TITLE} ${VERSION}"
InstallDir "$LOCALAPPDATA\Programs\${TITLE}"
InstallDirRegKey HKCU "${UNINSTALL_KEY}" "InstallLocation"
ShowInstDetails nevershow
ShowUninstDetails nevershow
SetDateSave off ; the same files give the same installer, whenever they were made

!define MUI_ICON "${STAGE}\tnt4swx.ico"
!define MUI_UNICON "${STAGE}\tnt4swx.ico"
!define MUI_ABORTWARNING
!define MUI_CUSTOMFUNCTION_GUIINIT ComeToTheTop
!define MUI_CUSTOMFUNCTION_UNGUIINIT un.ComeToTheTop
!define MUI_WELCOMEPAGE_TEXT "$(WELCOME)"
!define MUI_UNCONFIRMPAGE_TEXT_TOP "$(WHAT_STAYS)"

!insertmacro MUI_PAGE_WELCOME
!insertmacro MUI_PAGE_LICENSE "$(TERMS)"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!define MUI_FINISHPAGE_RUN "$INSTDIR\tnt4swx.exe"
!define MUI_FINISHPAGE_SHOWREADME "$INSTDIR\$(README)"
!define MUI_FINISHPAGE_SHOWREADME_NOTCHECKED
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES

; The first language is taken when the system speaks neither.
!insertmacro MUI_LANGUAGE "English"
!insertmacro MUI_LANGUAGE "German"
!include "texts.nsh"

VIProductVersion "${VERSION}.0"
VIFileVersion "${VERSION}.0"
!macro VERSION_TEXTS LANGUAGE DESCRIPTION TERMS
    VIAddVersionKey /LANG=${LANGUAGE} "ProductName" "${TITLE}"
    VIAddVersionKey /LANG=${LANGUAGE} "ProductVersion" "${VERSION}"
    VIAddVersionKey /LANG=${LANGUAGE} "CompanyName" "${PUBLISHER}"
    VIAddVersionKey /LANG=${LANGUAGE} "LegalCopyright" "${TERMS}"
    VIAddVersionKey /LANG=${LANGUAGE} "FileDescription" "${DESCRIPTION}"
    VIAddVersionKey /LANG=${LANGUAGE} "FileVersion" "${VERSION}"
!macroend
!insertmacro VERSION_TEXTS ${LANG_ENGLISH} "${TITLE} setup" "See lizenz_us.txt"
!insertmacro VERSION_TEXTS ${LANG_GERMAN} "Installation von ${TITLE}" "Siehe lizenz_de.txt"

; A sample that the user has worked on is the user's library: it is neither written over nor removed.
!macro InstallSample FOLDER NAME
    SetOutPath "$INSTDIR\${FOLDER}"
    ${IfNot} ${FileExists} "$INSTDIR\${FOLDER}\${NAME}"
        File "${STAGE}\${FOLDER}\${NAME}"
    ${EndIf}
!macroend

!macro RemoveSample FOLDER NAME
    SetOutPath "$PLUGINSDIR"
    File "${STAGE}\${FOLDER}\${NAME}"
    Push "$PLUGINSDIR\${NAME}"
    Push "$INSTDIR\${FOLDER}\${NAME}"
    Call un.HaveSameBytes
    Pop $0
    ${If} $0 == "yes"
        Delete "$INSTDIR\${FOLDER}\${NAME}"
    ${EndIf}
!macroend

!include "${STAGE}\lists.nsh" ; InstallFiles, RemoveFiles

; The program that is to be closed may lie above all other windows.
!macro DefineComeToTheTop PREFIX
Function ${PREFIX}ComeToTheTop
    System::Call 'user32::SetWindowPos(p $HWNDPARENT, p -1, i 0, i 0, i 0, i 0, i 0x3)' ; no size, no move
FunctionEnd
!macroend
!insertmacro DefineComeToTheTop ""
!insertmacro DefineComeToTheTop "un."

; Waits until a program is closed, or gives up: a file that runs cannot be opened for writing.
!macro DefineWaitUntilClosed PREFIX
Function ${PREFIX}WaitUntilClosed
    Exch $0
    Push $1
    ${Do}
        ClearErrors
        ${IfNot} ${FileExists} $0
            ${ExitDo}
        ${EndIf}
        FileOpen $1 $0 a
        ${IfNot} ${Errors}
            FileClose $1
            ${ExitDo}
        ${EndIf}
        ${If} ${Cmd} `MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION|MB_TOPMOST "$(CLOSE_FIRST)" /SD IDCANCEL IDCANCEL`
            SetErrorLevel 3
            Abort "$(CLOSE_FIRST)"
        ${EndIf}
    ${Loop}
    Pop $1
    Pop $0
FunctionEnd
!macroend
!insertmacro DefineWaitUntilClosed ""
!insertmacro DefineWaitUntilClosed "un."

!macro WaitUntilClosed PREFIX FOLDER
    Push "${FOLDER}\tnt4swx.exe"
    Call ${PREFIX}WaitUntilClosed
    Push "${FOLDER}\swx_standin.exe"
    Call ${PREFIX}WaitUntilClosed
    Push "${FOLDER}\tnt-convert.exe"
    Call ${PREFIX}WaitUntilClosed
!macroend

; An older version goes, with all that this one may no longer have.  The uninstaller of 1.0.0 leaves
; the settings only when it is told to.
Function RemoveInstalledVersion
    ReadRegStr $0 HKCU "${UNINSTALL_KEY}" "InstallLocation"
    ${If} $0 == ""
    ${OrIfNot} ${FileExists} "$0\uninstall.exe"
        Return
    ${EndIf}
    !insertmacro WaitUntilClosed "" "$0"
    ExecWait '"$0\uninstall.exe" /S /KEEPSETTINGS _?=$0'
    Delete "$0\uninstall.exe" ; it could not remove itself from where it ran
    RMDir "$0"
FunctionEnd

Section
    Call RemoveInstalledVersion
    !insertmacro WaitUntilClosed "" "$INSTDIR"
    !insertmacro InstallFiles
    SetOutPath "$INSTDIR"
    WriteUninstaller "$INSTDIR\uninstall.exe"

    CreateDirectory "$SMPROGRAMS\${TITLE}"
    CreateShortcut "$SMPROGRAMS\${TITLE}\${TITLE}.lnk" "$INSTDIR\tnt4swx.exe"
    CreateShortcut "$SMPROGRAMS\${TITLE}\$(STAND_IN).lnk" "$INSTDIR\swx_standin.exe"

    ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "${TITLE}"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\tnt4swx.exe"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "Publisher" "${PUBLISHER}"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
    WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" "EstimatedSize" $0
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1
SectionEnd

; "yes" when the two files whose names are on the stack hold the same bytes, else "no".
Function un.HaveSameBytes
    Exch $0
    Exch
    Exch $1
    Push $2
    Push $3
    Push $4
    StrCpy $4 "no"
    ClearErrors
    FileOpen $0 $0 r
    FileOpen $1 $1 r
    ${IfNot} ${Errors}
        ${Do}
            ClearErrors
            FileReadByte $0 $2
            ${If} ${Errors}
                StrCpy $2 "end"
            ${EndIf}
            ClearErrors
            FileReadByte $1 $3
            ${If} ${Errors}
                StrCpy $3 "end"
            ${EndIf}
            ${If} $2 != $3
                ${ExitDo}
            ${ElseIf} $2 == "end"
                StrCpy $4 "yes"
                ${ExitDo}
            ${EndIf}
        ${Loop}
    ${EndIf}
    FileClose $0
    FileClose $1
    StrCpy $0 $4
    Pop $4
    Pop $3
    Pop $2
    Pop $1
    Exch $0
FunctionEnd

Section "Uninstall"
    !insertmacro WaitUntilClosed "un." "$INSTDIR"
    !insertmacro RemoveFiles
    SetOutPath "$TEMP" ; a current folder cannot be removed
    Delete "$INSTDIR\uninstall.exe"
    RMDir "$INSTDIR" ; stays when the user keeps something in it

    ; The language may have changed since the installation.
    Delete "$SMPROGRAMS\${TITLE}\${TITLE}.lnk"
    Delete "$SMPROGRAMS\${TITLE}\${STAND_IN_ENGLISH}.lnk"
    Delete "$SMPROGRAMS\${TITLE}\${STAND_IN_GERMAN}.lnk"
    RMDir "$SMPROGRAMS\${TITLE}"

    ; Settings and recovery copies are the user's, as libraries are.
    DeleteRegKey HKCU "${UNINSTALL_KEY}"
SectionEnd
