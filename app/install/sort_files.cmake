# CPack packs a .tar.gz in the order in which the disk has the files. Packs it again in the order of their names.
execute_process(
  COMMAND tar --create --file ${CPACK_PACKAGE_FILES} --use-compress-program "gzip -9n" --directory
    ${CPACK_TEMPORARY_DIRECTORY} --sort name --mtime @$ENV{SOURCE_DATE_EPOCH} --owner root:0 --group root:0 zarpel
  COMMAND_ERROR_IS_FATAL ANY)
