# Checks that the shared library LIBRARY exports the one function
# iKvrVipsConvertDatabase and no other symbol. A Windows DLL is read with
# OBJDUMP: the names of its export table.
if(OBJDUMP)
  execute_process(COMMAND ${OBJDUMP} -p ${LIBRARY} OUTPUT_VARIABLE table RESULT_VARIABLE status)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "${OBJDUMP} failed on ${LIBRARY}")
  endif()
  string(REGEX MATCH "\\[Ordinal/Name Pointer\\] Table\n(\t\\[[^\n]*\n)*" names "${table}")
  string(REGEX MATCHALL "\\] [^\n]+" names "${names}")
  if(NOT names STREQUAL "] iKvrVipsConvertDatabase")
    message(FATAL_ERROR "${LIBRARY} exports more or other than iKvrVipsConvertDatabase:\n${names}")
  endif()
  return()
endif()
execute_process(COMMAND nm -D --defined-only ${LIBRARY}
  OUTPUT_VARIABLE symbols RESULT_VARIABLE status)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "nm failed on ${LIBRARY}")
endif()
string(STRIP "${symbols}" symbols)
if(NOT symbols MATCHES "^[0-9a-f]+ T iKvrVipsConvertDatabase$")
  message(FATAL_ERROR "${LIBRARY} exports more or other than iKvrVipsConvertDatabase:\n${symbols}")
endif()
