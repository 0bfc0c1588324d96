# Runs the kovrel tool on its sample recording and fails unless it exits 0,
# reports no bad block and no problem, and prints records.
#   cmake -DKOVREL=path/to/kovrel -DSAMPLE=path/to/sample.pcap -P check_sample.cmake

function(check_run label)
  execute_process(COMMAND ${ARGN}
    RESULT_VARIABLE status OUTPUT_VARIABLE out ERROR_VARIABLE err)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "${label}: exit status ${status}\n${err}")
  endif()
  if(NOT err MATCHES "\n  invalid blocks  0\n")
    message(FATAL_ERROR "${label}: bad blocks reported\n${err}")
  endif()
  if(NOT err MATCHES "\n  blocks          [1-9][0-9]*\n")
    message(FATAL_ERROR "${label}: no block decoded\n${err}")
  endif()
  if(err MATCHES "kovrel: ")
    message(FATAL_ERROR "${label}: problems reported\n${err}")
  endif()
  if(out MATCHES "INVALID" OR out MATCHES "\"valid\":false")
    message(FATAL_ERROR "${label}: invalid records printed")
  endif()
  if(out STREQUAL "")
    message(FATAL_ERROR "${label}: no records printed")
  endif()
  set(last_out "${out}" PARENT_SCOPE)
endfunction()

check_run("built-in sample" ${KOVREL} --stats)
set(builtin "${last_out}")
check_run("decode of sample.pcap" ${KOVREL} decode --stats ${SAMPLE})
# The same recording gives the same records, whichever way it comes in.
if(NOT builtin STREQUAL last_out)
  message(FATAL_ERROR "the built-in sample and sample.pcap decode differently")
endif()
check_run("JSON of sample.pcap" ${KOVREL} decode --stats --format json ${SAMPLE})
