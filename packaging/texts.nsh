; Texts of the installer that the tool does not bring along, and the files that are language-dependent.

!define STAND_IN_ENGLISH "Stand-in for SolidWorks"
!define STAND_IN_GERMAN "Stellvertreter für SolidWorks"

LangString STAND_IN ${LANG_ENGLISH} "${STAND_IN_ENGLISH}"
LangString STAND_IN ${LANG_GERMAN} "${STAND_IN_GERMAN}"

LangString README ${LANG_ENGLISH} "readme_us.txt"
LangString README ${LANG_GERMAN} "readme_de.txt"

LicenseLangString TERMS ${LANG_ENGLISH} "${STAGE}\terms_us.txt"
LicenseLangString TERMS ${LANG_GERMAN} "${STAGE}\terms_de.txt"

LangString WELCOME ${LANG_ENGLISH} "TNT4SWX is installed for you alone, without administrator rights.$\r$\n$\r$\nAn earlier version is replaced; libraries, settings and recovery copies stay. Close TNT4SWX before, if it is running. SolidWorks may stay open.$\r$\n$\r$\n$_CLICK"
LangString WELCOME ${LANG_GERMAN} "TNT4SWX wird nur für Sie installiert, ohne Administratorrechte.$\r$\n$\r$\nEine frühere Version wird ersetzt; Bibliotheken, Einstellungen und Wiederherstellungskopien bleiben. Schließen Sie vorher TNT4SWX, falls es läuft. SolidWorks kann geöffnet bleiben.$\r$\n$\r$\n$_CLICK"

LangString WHAT_STAYS ${LANG_ENGLISH} "TNT4SWX will be removed from the following folder. Your libraries, the settings and recovery copies stay."
LangString WHAT_STAYS ${LANG_GERMAN} "TNT4SWX wird aus dem folgenden Verzeichnis entfernt. Ihre Bibliotheken, die Einstellungen und Wiederherstellungskopien bleiben."

LangString CLOSE_FIRST ${LANG_ENGLISH} "TNT4SWX or one of the programs beside it is running. Please close it first."
LangString CLOSE_FIRST ${LANG_GERMAN} "TNT4SWX oder eines der Programme daneben läuft. Bitte zuerst schließen."
