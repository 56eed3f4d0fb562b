# Run by CPack on what it is about to pack: every file bears the time of the last commit, whenever it was built.
execute_process(COMMAND_ERROR_IS_FATAL ANY
    COMMAND find "${CPACK_TEMPORARY_DIRECTORY}" -exec touch --no-dereference --date=@$ENV{SOURCE_DATE_EPOCH} {} +)
