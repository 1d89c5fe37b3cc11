; The installer for Windows, for all users of a PC. It takes the folder that the zip is made of as it stands.
; makensis gets -DWORK=folder with build.nsh, uninstall-files.nsh and side.bmp, and -DOUTPUT=the installer's path.
;
; Silently: Setup.exe /S [/NOFIREWALL] [/D=folder]; uninstall.exe /S. The exit code is 0 when all went well, 2 when the
; program is running and so nothing was done.

Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
ManifestDPIAware true
RequestExecutionLevel admin

!include MUI2.nsh
!include LogicLib.nsh
!include FileFunc.nsh
!include Sections.nsh
!include WinVer.nsh
!include "${WORK}/build.nsh"

!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Zandrove"
!define SHORTCUT "$SMPROGRAMS\Zandrove.lnk"

Name "Zandrove"
BrandingText "Zandrove ${VERSION}"
OutFile "${OUTPUT}"
InstallDir "$PROGRAMFILES64\Zandrove"
InstallDirRegKey HKLM "${UNINSTALL_KEY}" "InstallLocation"

VIProductVersion "${VERSION}.0.0"
VIAddVersionKey ProductName "Zandrove"
VIAddVersionKey ProductVersion "${VERSION}"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey CompanyName "${PUBLISHER}"
VIAddVersionKey LegalCopyright "${PUBLISHER}"
VIAddVersionKey FileDescription "${SUMMARY}"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_WELCOMEFINISHPAGE_BITMAP "${WORK}/side.bmp"
!define MUI_WELCOMEFINISHPAGE_BITMAP_STRETCH FitControl
!define MUI_COMPONENTSPAGE_SMALLDESC
!define MUI_ABORTWARNING
!ifdef WINDOW
    !define MUI_FINISHPAGE_RUN
    !define MUI_FINISHPAGE_RUN_FUNCTION startAsUser
!endif

!insertmacro MUI_PAGE_WELCOME
!insertmacro MUI_PAGE_COMPONENTS
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES

!include "texts.nsh"

; stopWhileRunning FOLDER: waits until no program of that folder is running. A silent run does not wait: it ends.
!macro stopWhileRunning folder
    !define retry retry_${__LINE__}
    ${retry}:
    !insertmacro isBusy "${folder}\zandrove.exe"
    !insertmacro isBusy "${folder}\zandrove-cli.exe"
    !undef retry
!macroend

; A running program can't be opened for writing.
!macro isBusy program
    ${If} ${FileExists} "${program}"
        ClearErrors
        FileOpen $0 "${program}" a
        ${If} ${Errors}
            MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$(TextRunning)" /SD IDCANCEL IDRETRY ${retry}
            SetErrorLevel 2
            Abort
        ${EndIf}
        FileClose $0
    ${EndIf}
!macroend

!macro netsh arguments
    nsExec::Exec '"$SYSDIR\netsh.exe" advfirewall firewall ${arguments}'
    Pop $0
!macroend

!macro deleteFirewallRules
    !insertmacro netsh 'delete rule "name=Zandrove TCP"'
    !insertmacro netsh 'delete rule "name=Zandrove UDP"'
!macroend

; What an earlier version has installed goes first, so that nothing of it stays that this one has not.
Function removeEarlierVersion
    ReadRegStr $1 HKLM "${UNINSTALL_KEY}" "InstallLocation"
    ${If} $1 != ""
    ${AndIf} ${FileExists} "$1\uninstall.exe"
        !insertmacro stopWhileRunning "$1"
        ExecWait '"$1\uninstall.exe" /S _?=$1' $0
        ${If} $0 <> 0
            SetErrorLevel 2
            Abort
        ${EndIf}
        Delete "$1\uninstall.exe"
        RMDir "$1"
    ${EndIf}
FunctionEnd

Section "Zandrove" SectionProgram
    SectionIn RO
    Call removeEarlierVersion
    !insertmacro stopWhileRunning "$INSTDIR"
    SetOutPath "$INSTDIR"
    File /r "${STAGE}/*"
    WriteUninstaller "$INSTDIR\uninstall.exe"

    WriteRegStr HKLM "${UNINSTALL_KEY}" "DisplayName" "Zandrove"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "Publisher" "${PUBLISHER}"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "URLInfoAbout" "${HOMEPAGE}"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\uninstall.exe"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
    WriteRegStr HKLM "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
    WriteRegDWORD HKLM "${UNINSTALL_KEY}" "NoModify" 1
    WriteRegDWORD HKLM "${UNINSTALL_KEY}" "NoRepair" 1
    ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
    WriteRegDWORD HKLM "${UNINSTALL_KEY}" "EstimatedSize" $0
SectionEnd

!ifdef WINDOW
Section "$(NameShortcut)" SectionShortcut
    CreateShortcut "${SHORTCUT}" "$INSTDIR\zandrove.exe" "" "" "" "" "" "$(TextShortcut)"
SectionEnd
!endif

Section "$(NameFirewall)" SectionFirewall
    !insertmacro deleteFirewallRules
    !insertmacro netsh 'add rule "name=Zandrove TCP" dir=in action=allow protocol=tcp localport=${TCP_PORT} profile=any'
    !insertmacro netsh 'add rule "name=Zandrove UDP" dir=in action=allow protocol=udp localport=${UDP_PORT} profile=any'
SectionEnd

!insertmacro MUI_FUNCTION_DESCRIPTION_BEGIN
    !insertmacro MUI_DESCRIPTION_TEXT ${SectionProgram} "$(TextProgram)"
!ifdef WINDOW
    !insertmacro MUI_DESCRIPTION_TEXT ${SectionShortcut} "$(TextShortcut)"
!endif
    !insertmacro MUI_DESCRIPTION_TEXT ${SectionFirewall} "$(TextFirewall)"
!insertmacro MUI_FUNCTION_DESCRIPTION_END

Section "Uninstall"
    !insertmacro stopWhileRunning "$INSTDIR"
    !insertmacro deleteFirewallRules
    Delete "${SHORTCUT}"
    !include "${WORK}/uninstall-files.nsh"
    Delete "$INSTDIR\uninstall.exe"
    SetOutPath "$TEMP" ; a folder that is somebody's current one can't go
    RMDir "$INSTDIR"
    DeleteRegKey HKLM "${UNINSTALL_KEY}"
SectionEnd

!macro useWholePc
    SetShellVarContext all
    SetRegView 64
!macroend

Function .onInit
    !insertmacro useWholePc
    ${IfNot} ${AtLeastWin10}
        MessageBox MB_OK|MB_ICONSTOP "$(TextWindows10)" /SD IDOK
        SetErrorLevel 2
        Abort
    ${EndIf}
    ${GetParameters} $0
    ClearErrors
    ${GetOptions} $0 "/NOFIREWALL" $1
    ${IfNot} ${Errors}
        !insertmacro UnselectSection ${SectionFirewall}
    ${EndIf}
FunctionEnd

Function un.onInit
    !insertmacro useWholePc
FunctionEnd

!ifdef WINDOW
; Through the shell, which runs with the user's rights and not with the installer's.
Function startAsUser
    Exec '"$WINDIR\explorer.exe" "$INSTDIR\zandrove.exe"'
FunctionEnd
!endif
