find_package(benchmark REQUIRED)

add_executable(decode_bench decode_bench.cpp packet_mix.cpp packet_text.cpp)
target_link_libraries(decode_bench PRIVATE ruvenmark_options ruvenmark_devices benchmark::benchmark)
