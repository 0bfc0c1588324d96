# Runs the kovrel tool on its sample recording and fails unless it exits 0,
# reports no bad block and no problem, and prints records (text, JSON,
# CSV); --stats alone counts without printing; bad CSV columns are refused.
# With --format html it writes one whole page per input, and refuses
# several inputs without -o.
#   cmake -DKOVREL=path/to/kovrel -DSAMPLE=path/to/sample.pcap -DWORK=dir -P check_sample.cmake

function(check_run label)
  execute_process(COMMAND ${ARGN}
    RESULT_VARIABLE status OUTPUT_VARIABLE out ERROR_VARIABLE err)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "${label}: exit status ${status}\n${err}")
  endif()
  # With --format json the statistics are one JSON object.
  if(NOT err MATCHES "\n  blocks          [0-9]+ read: [0-9]+ valid, 0 invalid\n"
     AND NOT err MATCHES "^{\"stats\":{.*\"blocks\":{[^}]*\"invalid\":0}")
    message(FATAL_ERROR "${label}: bad blocks reported\n${err}")
  endif()
  if(NOT err MATCHES "\n  blocks          [0-9]+ read: [1-9][0-9]* valid"
     AND NOT err MATCHES "^{\"stats\":{.*\"blocks\":{[^}]*\"valid\":[1-9][0-9]*,")
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
  set(last_err "${err}" PARENT_SCOPE)
endfunction()

check_run("built-in sample" ${KOVREL} --stats --format text)
set(builtin "${last_out}")
set(builtin_err "${last_err}")
check_run("decode of sample.pcap" ${KOVREL} decode --stats --format text ${SAMPLE})
# The same recording gives the same records, whichever way it comes in.
if(NOT builtin STREQUAL last_out)
  message(FATAL_ERROR "the built-in sample and sample.pcap decode differently")
endif()
check_run("JSON of sample.pcap" ${KOVREL} decode --stats --format json ${SAMPLE})
check_run("CSV of sample.pcap" ${KOVREL} decode --stats --columns "block,cat,sac,tod,I048/040.rho" ${SAMPLE})
if(NOT last_out MATCHES "^block,cat,sac,tod,I048/040.rho\n1,34,")
  message(FATAL_ERROR "CSV of sample.pcap: header or first row wrong\n${last_out}")
endif()

# --stats alone, and records thrown away, count without printing: the
# same counts (none printed), no record.
string(REGEX REPLACE "\n  time [^\n]*" "" counts "${builtin_err}")
string(REGEX REPLACE ", [0-9]+ printed\n" ", 0 printed\n" counts "${counts}")
foreach(args "--stats" "--stats;-o;/dev/null")
  execute_process(COMMAND ${KOVREL} ${args} RESULT_VARIABLE status OUTPUT_VARIABLE out ERROR_VARIABLE err)
  string(REGEX REPLACE "\n  time [^\n]*" "" err_counts "${err}")
  if(NOT status EQUAL 0 OR NOT out STREQUAL "" OR NOT err_counts STREQUAL counts)
    message(FATAL_ERROR "kovrel ${args}: exit status ${status}, ${out}\n${err}")
  endif()
endforeach()

# Columns that cannot be written are refused before anything is decoded.
foreach(args "--columns;block,squawk" "--format;csv;--columns;I048/040" "--format;json;--columns;block")
  execute_process(COMMAND ${KOVREL} decode ${args} ${SAMPLE} RESULT_VARIABLE status OUTPUT_VARIABLE out ERROR_VARIABLE err)
  if(NOT status EQUAL 2 OR NOT out STREQUAL "" OR NOT err MATCHES "^kovrel: ")
    message(FATAL_ERROR "kovrel decode ${args}: exit status ${status}\n${err}")
  endif()
endforeach()

set(page ${WORK}/check_sample.html)
set(page2 ${WORK}/check_sample-2.html)
file(REMOVE ${page} ${page2})
execute_process(COMMAND ${KOVREL} decode --format html -o ${page} ${SAMPLE} ${SAMPLE}
  RESULT_VARIABLE status ERROR_VARIABLE err)
if(NOT status EQUAL 0 OR err MATCHES "kovrel: ")
  message(FATAL_ERROR "HTML of two inputs: exit status ${status}\n${err}")
endif()
foreach(p ${page} ${page2})
  if(NOT EXISTS ${p})
    message(FATAL_ERROR "HTML of two inputs: ${p} not written")
  endif()
  file(SIZE ${p} size)
  math(EXPR tail "${size} - 16")
  file(READ ${p} head LIMIT 65536)
  file(READ ${p} end OFFSET ${tail})
  if(NOT head MATCHES "^<!DOCTYPE html>" OR NOT head MATCHES "application/x-kovrel-group" OR NOT end MATCHES "</html>\n$")
    message(FATAL_ERROR "HTML of two inputs: ${p} is not a whole page")
  endif()
endforeach()
execute_process(COMMAND ${KOVREL} decode --format html ${SAMPLE} ${SAMPLE}
  RESULT_VARIABLE status OUTPUT_VARIABLE out ERROR_VARIABLE err)
if(NOT status EQUAL 2 OR NOT out STREQUAL "" OR NOT err MATCHES "give -o FILE")
  message(FATAL_ERROR "HTML of two inputs without -o: exit status ${status}\n${err}")
endif()
