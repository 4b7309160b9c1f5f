# cmake -DFROM=file -DTO=file -P copy_if_absent.cmake
if(NOT EXISTS "${TO}")
  file(COPY_FILE "${FROM}" "${TO}")
endif()
