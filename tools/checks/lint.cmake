# clang-tidy over the code of the game and its tools. Each room is one unit, because most of the time
# goes into the library's headers, which are then read once a room instead of once a file. So the
# files of a room may not give one name to two things.
find_program(CLANG_TIDY clang-tidy REQUIRED)
file(GLOB_RECURSE headers CONFIGURE_DEPENDS src/*.h tools/*.h)

# lint_room(ROOM LIBRARY): LIBRARY gives the room its compiler's options.
function(lint_room room library)
  file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/${room}/*.cpp)
  list(TRANSFORM sources REPLACE "(.+)" "#include \"\\1\"\n" OUTPUT_VARIABLE includes)
  list(JOIN includes "" includes)
  string(MAKE_C_IDENTIFIER ${room} name)
  set(unit ${PROJECT_BINARY_DIR}/lint/${name}.cpp)
  file(CONFIGURE OUTPUT ${unit} CONTENT "${includes}" @ONLY)
  # Never built: it gives the unit its entry among the compile commands.
  add_library(lint_${name} OBJECT EXCLUDE_FROM_ALL ${unit})
  target_link_libraries(lint_${name} PRIVATE ${library})
  target_include_directories(lint_${name} PRIVATE ${PROJECT_SOURCE_DIR}/tools)
  target_compile_definitions(lint_${name} PRIVATE MEVRACARD_DATA_DIR="")
  add_custom_command(OUTPUT ${unit}.passed
    COMMAND ${CLANG_TIDY} --quiet -p ${PROJECT_BINARY_DIR} --extra-arg=-Wno-unknown-warning-option
      --config-file=${PROJECT_SOURCE_DIR}/.clang-tidy ${unit}
    COMMAND ${CMAKE_COMMAND} -E touch ${unit}.passed
    DEPENDS ${unit} ${sources} ${headers} ${PROJECT_SOURCE_DIR}/.clang-tidy
    COMMENT "Examining ${room}" VERBATIM)
  add_custom_target(lint_${name}_passed ALL DEPENDS ${unit}.passed)
endfunction()

foreach(room src/game src/texts src/store src/ai src/platform src/platform/headless src/platform/files
        src/ui src/play tools/script tools/simulate)
  lint_room(${room} mevracard_core)
endforeach()
if(TARGET mevracard_qt)
  lint_room(src/platform/qt mevracard_qt)
  lint_room(src/app mevracard_qt)
endif()
