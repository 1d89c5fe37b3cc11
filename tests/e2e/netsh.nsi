; Stands in for netsh on a PC of the tests: writes down how it was called.
Unicode true
Target amd64-unicode
SilentInstall silent
RequestExecutionLevel user
OutFile "${OUTPUT}"
Section
    FileOpen $0 "C:\netsh.log" a
    FileSeek $0 0 END
    FileWriteUTF16LE $0 "$CMDLINE$\n"
    FileClose $0
SectionEnd
