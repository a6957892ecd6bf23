# Feeds the step that adapts the generated sources what another compiler might write, and expects it
# to stop. Takes SCRIPT, PROTO_DIR, RAW_DIR (what the compiler in use writes) and WORK_DIR.
cmake_minimum_required(VERSION 3.22)

function(adapt out schema raw_dir)
  execute_process(
    COMMAND ${CMAKE_COMMAND} -D SCHEMA=${schema} -D PROTO_DIR=${PROTO_DIR} -D RAW_DIR=${raw_dir}
            -D GENERATED_DIR=${WORK_DIR} -P ${SCRIPT}
    RESULT_VARIABLE status ERROR_VARIABLE errors)
  string(REGEX REPLACE "[ \n]+" " " errors "${status} ${errors}")
  set(${out} "${errors}" PARENT_SCOPE)
endfunction()

# expect_stop(file from to message): with from replaced by to, once, the step stops and says message.
function(expect_stop file from to message)
  get_filename_component(schema ${file} NAME_WE)
  file(COPY ${RAW_DIR}/${schema}.pb.cc ${RAW_DIR}/${schema}.pb.h DESTINATION ${WORK_DIR}/raw)
  file(READ ${WORK_DIR}/raw/${file} text)
  string(FIND "${text}" "${from}" at)
  if(at EQUAL -1)
    message(FATAL_ERROR "nothing to replace: ${from}")
  endif()
  string(LENGTH "${from}" length)
  string(SUBSTRING "${text}" 0 ${at} before)
  math(EXPR at "${at} + ${length}")
  string(SUBSTRING "${text}" ${at} -1 after)
  file(WRITE ${WORK_DIR}/raw/${file} "${before}${to}${after}")
  file(REMOVE ${WORK_DIR}/${schema}.pb.cc ${WORK_DIR}/${schema}.pb.h)
  adapt(outcome ${schema} ${WORK_DIR}/raw)
  if(outcome MATCHES "^0 " OR NOT outcome MATCHES "${message}")
    message(SEND_ERROR "expected a stop with '${message}', got: ${outcome}")
  endif()
  if(EXISTS ${WORK_DIR}/${schema}.pb.cc OR EXISTS ${WORK_DIR}/${schema}.pb.h)
    message(SEND_ERROR "a step that stopped left sources behind: ${message}")
  endif()
endfunction()

adapt(outcome peq ${RAW_DIR})
if(NOT outcome MATCHES "^0 ")
  message(FATAL_ERROR "the sources as they are: ${outcome}")
endif()

set(sink "_internal_metadata_.mutable_unknown_fields<std::string>()")
expect_stop(peq.pb.cc "UnknownFieldParse(" "OtherParse("
            "unknown-field parse sites: 1 found, 2 expected")
expect_stop(peq.pb.cc "${sink}," "other_sink()," "unknown-field sinks: 1 found, 2 expected")
expect_stop(peq.pb.cc "::WriteVarint(5, val, mutable_unknown_fields())" "::Keep(5, val)"
            "enum values that drop: 0 found, 1 expected")
expect_stop(peq.pb.cc "message_done:" "Keep(mutable_unknown_fields())\; message_done:"
            "unknown-field sinks left over: 1 found, 0 expected")
expect_stop(peq.pb.h "insertion_point(namespace_scope)" "other"
            "insertion points 'namespace_scope': 0 found, 1 expected")
expect_stop(peq.pb.cc "insertion_point(namespace_scope)" "other"
            "insertion points 'namespace_scope': 0 found, 1 expected")
expect_stop(onyx.pb.cc "_internal_add_hpeq_coeffs(" "other("
            "loops that add to hpeq_coeffs: 0 found, 1 expected")
