#include "converter/Converter.h"
#include "converter/linux/LinuxCodePages.h"
#include "converter/linux/LinuxConsole.h"
#include "converter/linux/LinuxFiles.h"

int main(int count, char** values) {
    LinuxFiles files;
    LinuxConsole console;
    return static_cast<int>(
        RunConverter({values + 1, values + count}, TNT_VERSION, {files, console, LinuxCodePage}));
}
