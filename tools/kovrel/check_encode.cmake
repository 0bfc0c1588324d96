# Runs `kovrel encode` from the command line: its exit status for records,
# for no record and for bad options, the bad lines it reports, and the
# blocks it writes (from record fields and from items) read back by
# `kovrel decode --format json`.
#   cmake -DKOVREL=path/to/kovrel -DWORK=dir -P check_encode.cmake

function(expect_status label status)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE got OUTPUT_VARIABLE out ERROR_VARIABLE err)
  if(NOT got EQUAL status)
    message(FATAL_ERROR "${label}: exit status ${got}, not ${status}\n${err}")
  endif()
  set(last_out "${out}" PARENT_SCOPE)
  set(last_err "${err}" PARENT_SCOPE)
endfunction()

set(lines ${WORK}/check_encode.jsonl)
set(blocks ${WORK}/check_encode.ast)
file(WRITE ${lines}
  "{\"cat\":48,\"fields\":{\"sac\":25,\"sic\":1,\"tod\":\"12:34:56.789\",\"mode3a\":\"5077\",\"icao\":\"3C654A\"}}\n"
  "{\"cat\":48,\"fields\":{\"sac\":25}}\n"
  "{\"cat\":62,\"items\":[{\"id\":\"I062/010\",\"hex\":\"19 64\"},{\"id\":\"I062/060\",\"fields\":{\"mode3a\":\"7700\"}}]}\n"
  "{\"cat\":62,\"items\":[{\"id\":\"I062/010\",\"hex\":\"19 64\"},{\"id\":\"I062/060\",\"fields\":{\"mode3a\":\"7780\"}}]}\n")
file(REMOVE ${blocks})
expect_status("four lines, two bad" 0 ${KOVREL} encode ${lines} -o ${blocks})
if(NOT last_err MATCHES "check_encode.jsonl:2: sac and sic go together")
  message(FATAL_ERROR "the bad line is not reported\n${last_err}")
endif()
if(NOT last_err MATCHES "check_encode.jsonl:4: I062/060.mode3a: not octal digits")
  message(FATAL_ERROR "the bad item is not reported\n${last_err}")
endif()
expect_status("decoding the blocks" 0 ${KOVREL} decode --format json ${blocks})
if(NOT last_out MATCHES "\"icao\":\"3C654A\"" OR NOT last_out MATCHES "\"tod\":\"12:34:56.789\"")
  message(FATAL_ERROR "the fields do not come back\n${last_out}")
endif()
if(NOT last_out MATCHES "\"cat\":62" OR NOT last_out MATCHES "\"mode3a\":\"7700\"")
  message(FATAL_ERROR "the CAT062 record does not come back\n${last_out}")
endif()

file(WRITE ${lines} "")
expect_status("empty input" 1 ${KOVREL} encode ${lines} -o ${blocks})
if(NOT last_err MATCHES "no record written")
  message(FATAL_ERROR "empty input: ${last_err}")
endif()
expect_status("missing input" 1 ${KOVREL} encode ${WORK}/no_such_input.jsonl -o ${blocks})
expect_status("records per block out of range" 2 ${KOVREL} encode --block-records 65 ${lines} -o ${blocks})
expect_status("unknown option" 2 ${KOVREL} encode --nonsense ${lines})
