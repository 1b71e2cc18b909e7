# cmake -DCMARK=PROGRAM -DSOURCE=PAGE.md -DTEMPLATE=FILE -DOUTPUT=PAGE.html -P MakePage.cmake
# --unsafe keeps the guide's own markup: pictures with a light and a dark look.
execute_process(COMMAND ${CMARK} --unsafe --extension table ${SOURCE} OUTPUT_VARIABLE content
    COMMAND_ERROR_IS_FATAL ANY)
string(REGEX REPLACE "href=\"([a-z-]+)\\.md\"" "href=\"\\1.html\"" content "${content}")
string(REGEX REPLACE "(src|srcset)=\"\\.\\./images/" "\\1=\"images/" content "${content}")
file(STRINGS ${SOURCE} title LIMIT_COUNT 1)
string(REGEX REPLACE "^# " "" title "${title}")
configure_file(${TEMPLATE} ${OUTPUT} @ONLY)
