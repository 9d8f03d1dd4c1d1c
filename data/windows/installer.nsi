; The installer: for one user, without administrator rights. scripts/windows.sh gives VERSION, the BUNDLE to install, the
; list of its FILES, and OUTPUT. FILES inserts a macro for each file with its path in the bundle, its folder, which is empty
; or ends with a backslash, and its name; then one for each folder, the deepest first.
Target amd64-unicode
SetCompressor /SOLID lzma
!include FileFunc.nsh
!include LogicLib.nsh
!include MUI2.nsh
!include WinVer.nsh

Name Warhost
BrandingText "Warhost ${VERSION}"
OutFile "${OUTPUT}"
!define UNINSTALL_KEY Software\Microsoft\Windows\CurrentVersion\Uninstall\Warhost
InstallDir $LOCALAPPDATA\Programs\Warhost
InstallDirRegKey HKCU ${UNINSTALL_KEY} InstallLocation
RequestExecutionLevel user
ManifestDPIAware true
ManifestLongPathAware true
ManifestSupportedOS Win10
VIProductVersion ${VERSION}.0
VIAddVersionKey ProductName Warhost
VIAddVersionKey ProductVersion ${VERSION}
VIAddVersionKey FileVersion ${VERSION}
VIAddVersionKey FileDescription "Warhost Setup"
VIAddVersionKey CompanyName "The Warhost developers"
VIAddVersionKey LegalCopyright "Copyright 2026 The Warhost developers"

!define MUI_ICON ${ICON}
!define MUI_UNICON ${ICON}
!define MUI_COMPONENTSPAGE_NODESC
!define MUI_FINISHPAGE_RUN $INSTDIR\warhost.exe
!insertmacro MUI_PAGE_COMPONENTS
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE English

; Stops if the program in the folder is running, because its files could not be replaced.
!macro StopWhileItRuns FOLDER
    ${If} ${FileExists} ${FOLDER}\warhost.exe
        ClearErrors
        FileOpen $0 ${FOLDER}\warhost.exe a
        ${If} ${Errors}
            MessageBox MB_ICONEXCLAMATION "Warhost is running, or its files are protected. Please quit it and try again." /SD IDOK
            SetErrorLevel 2
            Quit
        ${EndIf}
        FileClose $0
    ${EndIf}
!macroend

!macro InstallFile SOURCE FOLDER NAME
    SetOutPath "$INSTDIR\${FOLDER}"
    File "${BUNDLE}/${SOURCE}"
!macroend
!macro RemoveFile SOURCE FOLDER NAME
    Delete "$INSTDIR\${FOLDER}${NAME}"
!macroend

; A file that the user may have changed. If the uninstaller has left it, it belongs to the user and stays.
!macro InstallOwnFile SOURCE FOLDER NAME
    SetOutPath "$INSTDIR\${FOLDER}"
    ${If} ${FileExists} "$INSTDIR\${FOLDER}${NAME}"
        !if "${NAME}" == modif.txt
            File /oname=modif.new.txt "${BUNDLE}/${SOURCE}"
        !endif
    ${Else}
        File "${BUNDLE}/${SOURCE}"
    ${EndIf}
!macroend
; The file is unchanged if its time is still that of the bundle. The halves of a time are compared as numbers, because
; those from the compiler are written without a sign and those from the installer with one.
!macro RemoveOwnFile SOURCE FOLDER NAME
    GetFileTimeLocal "${BUNDLE}/${SOURCE}" $0 $1
    ClearErrors
    GetFileTime "$INSTDIR\${FOLDER}${NAME}" $2 $3
    ${IfNot} ${Errors}
    ${AndIf} $0 = $2
    ${AndIf} $1 = $3
        Delete "$INSTDIR\${FOLDER}${NAME}"
    ${EndIf}
!macroend

; Removes the folder if it is empty.
!macro KeepFolder FOLDER
!macroend
!macro RemoveFolder FOLDER
    RMDir "$INSTDIR\${FOLDER}"
!macroend

!macro TellShell
    System::Call "shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)" ; SHCNE_ASSOCCHANGED
!macroend

Section Warhost
    SectionIn RO
    !insertmacro StopWhileItRuns $INSTDIR
    ; The version that is installed, which may be in another folder.
    ReadRegStr $1 HKCU ${UNINSTALL_KEY} InstallLocation
    ${If} $1 != ""
    ${AndIf} ${FileExists} $1\uninstall.exe
        !insertmacro StopWhileItRuns $1
        ExecWait '"$1\uninstall.exe" /S _?=$1' $0
        ${If} $0 <> 0
            MessageBox MB_ICONEXCLAMATION "The installed version could not be removed." /SD IDOK
            SetErrorLevel 2
            Quit
        ${EndIf}
        Delete $1\uninstall.exe
        RMDir $1
    ${EndIf}

    !define FILE_ACTION InstallFile
    !define OWN_FILE_ACTION InstallOwnFile
    !define FOLDER_ACTION KeepFolder
    !include "${FILES}"
    SetOutPath $INSTDIR
    WriteUninstaller $INSTDIR\uninstall.exe
    CreateShortCut $SMPROGRAMS\Warhost.lnk $INSTDIR\warhost.exe

    WriteRegStr HKCU Software\Classes\Warhost.Army "" "Warhost army"
    WriteRegStr HKCU Software\Classes\Warhost.Army\DefaultIcon "" "$INSTDIR\warhost.exe,1"
    WriteRegStr HKCU Software\Classes\.Army "" Warhost.Army
    !insertmacro TellShell

    WriteRegStr HKCU ${UNINSTALL_KEY} DisplayName Warhost
    WriteRegStr HKCU ${UNINSTALL_KEY} DisplayVersion ${VERSION}
    WriteRegStr HKCU ${UNINSTALL_KEY} DisplayIcon $INSTDIR\warhost.exe
    WriteRegStr HKCU ${UNINSTALL_KEY} Publisher "The Warhost developers"
    WriteRegStr HKCU ${UNINSTALL_KEY} URLInfoAbout https://warhost.example/
    WriteRegStr HKCU ${UNINSTALL_KEY} InstallLocation $INSTDIR
    WriteRegStr HKCU ${UNINSTALL_KEY} UninstallString '"$INSTDIR\uninstall.exe"'
    WriteRegStr HKCU ${UNINSTALL_KEY} QuietUninstallString '"$INSTDIR\uninstall.exe" /S'
    WriteRegDWORD HKCU ${UNINSTALL_KEY} NoModify 1
    WriteRegDWORD HKCU ${UNINSTALL_KEY} NoRepair 1
    ${GetSize} $INSTDIR /S=0K $0 $1 $2
    WriteRegDWORD HKCU ${UNINSTALL_KEY} EstimatedSize $0
SectionEnd

Section /o "Icon on the desktop" desktop_icon
    CreateShortCut $DESKTOP\Warhost.lnk $INSTDIR\warhost.exe
SectionEnd

Function .onInit
    ${IfNot} ${AtLeastWin10}
        MessageBox MB_ICONEXCLAMATION "Warhost needs Windows 10 or later." /SD IDOK
        SetErrorLevel 2
        Quit
    ${EndIf}
    ${If} ${FileExists} $DESKTOP\Warhost.lnk ; an upgrade keeps it
        !insertmacro SelectSection ${desktop_icon}
    ${EndIf}
FunctionEnd

Section Uninstall
    !insertmacro StopWhileItRuns $INSTDIR
    !undef FILE_ACTION
    !undef OWN_FILE_ACTION
    !undef FOLDER_ACTION
    !define FILE_ACTION RemoveFile
    !define OWN_FILE_ACTION RemoveOwnFile
    !define FOLDER_ACTION RemoveFolder
    !include "${FILES}"
    Delete $INSTDIR\modif.new.txt
    Delete $INSTDIR\uninstall.exe
    RMDir $INSTDIR
    Delete $SMPROGRAMS\Warhost.lnk
    Delete $DESKTOP\Warhost.lnk

    ReadRegStr $0 HKCU Software\Classes\.Army ""
    ${If} $0 == Warhost.Army
        DeleteRegValue HKCU Software\Classes\.Army ""
        DeleteRegKey /ifempty HKCU Software\Classes\.Army
    ${EndIf}
    DeleteRegKey HKCU Software\Classes\Warhost.Army
    !insertmacro TellShell
    DeleteRegKey HKCU ${UNINSTALL_KEY}
SectionEnd
