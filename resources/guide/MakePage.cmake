# cmake -DCMARK=PROGRAM -DSOURCE=PAGE.md -DTEMPLATE=FILE -DOUTPUT=PAGE.html -P MakePage.cmake
execute_process(COMMAND ${CMARK} --extension table ${SOURCE} OUTPUT_VARIABLE content COMMAND_ERROR_IS_FATAL ANY)
string(REGEX REPLACE "href=\"([a-z-]+)\\.md\"" "href=\"\\1.html\"" content "${content}")
string(REPLACE "src=\"../images/" "src=\"images/" content "${content}")
file(STRINGS ${SOURCE} title LIMIT_COUNT 1)
string(REGEX REPLACE "^# " "" title "${title}")
configure_file(${TEMPLATE} ${OUTPUT} @ONLY)
