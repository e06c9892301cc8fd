#pragma once

// The version, as the build passes it on from CMakeLists.txt.

#define TNT_TEXT_OF(number) #number
#define TNT_TEXT(number) TNT_TEXT_OF(number)
#define TNT_VERSION_TEXT                                                                           \
    TNT_TEXT(TNT_VERSION_MAJOR) "." TNT_TEXT(TNT_VERSION_MINOR) "." TNT_TEXT(TNT_VERSION_PATCH)
#define TNT_VERSION_NUMBERS TNT_VERSION_MAJOR, TNT_VERSION_MINOR, TNT_VERSION_PATCH, 0
