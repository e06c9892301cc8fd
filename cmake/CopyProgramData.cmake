# Lays the language files, documents, samples and banners beside the program; unchanged files keep
# their time stamps.
foreach(pattern language/*.ini documents/*.txt)
    file(GLOB files ${SOURCE}/${pattern})
    file(COPY ${files} DESTINATION ${TARGET})
endforeach()
foreach(folder samples banners)
    if(EXISTS ${SOURCE}/${folder})
        file(COPY ${SOURCE}/${folder} DESTINATION ${TARGET} PATTERN "*.svg" EXCLUDE)
    endif()
endforeach()
