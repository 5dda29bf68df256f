add_executable(road_bench ${CMAKE_CURRENT_LIST_DIR}/road_bench.cpp)
target_include_directories(road_bench PRIVATE ${PROJECT_SOURCE_DIR}/tests)
target_link_libraries(road_bench PRIVATE ruvenmark_options ruvenmark_logic ruvenmark_devices)
