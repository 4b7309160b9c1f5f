# Copies the file FROM to TO, unless there is one already.
if(NOT EXISTS "${TO}")
  file(COPY_FILE "${FROM}" "${TO}")
endif()
