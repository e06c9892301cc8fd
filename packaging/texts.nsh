; Texts of the installer that the tool does not bring along, and the files that are language-dependent.

!define STAND_IN_ENGLISH "Stand-in for SolidWorks"
!define STAND_IN_GERMAN "Stellvertreter für SolidWorks"

LangString STAND_IN ${LANG_ENGLISH} "${STAND_IN_ENGLISH}"
LangString STAND_IN ${LANG_GERMAN} "${STAND_IN_GERMAN}"

LangString README ${LANG_ENGLISH} "readme_us.txt"
LangString README ${LANG_GERMAN} "readme_de.txt"

LicenseLangString TERMS ${LANG_ENGLISH} "${STAGE}\terms_us.txt"
LicenseLangString TERMS ${LANG_GERMAN} "${STAGE}\terms_de.txt"

LangString CLOSE_FIRST ${LANG_ENGLISH} "TNT4SWX or one of the programs beside it is running. Please close it first."
LangString CLOSE_FIRST ${LANG_GERMAN} "TNT4SWX oder eines der Programme daneben läuft. Bitte zuerst schließen."
