# Checks that the shared library LIBRARY exports the one function
# iKvrVipsConvertDatabase and no other symbol.
execute_process(COMMAND nm -D --defined-only ${LIBRARY}
  OUTPUT_VARIABLE symbols RESULT_VARIABLE status)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "nm failed on ${LIBRARY}")
endif()
string(STRIP "${symbols}" symbols)
if(NOT symbols MATCHES "^[0-9a-f]+ T iKvrVipsConvertDatabase$")
  message(FATAL_ERROR "${LIBRARY} exports more or other than iKvrVipsConvertDatabase:\n${symbols}")
endif()
