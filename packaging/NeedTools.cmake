# Run by `cpack` before it makes a package. Without dpkg-shlibdeps the package would come out all the
# same, and name none of the libraries that the program needs.
find_program(SHLIBDEPS dpkg-shlibdeps)
if(NOT SHLIBDEPS)
  message(FATAL_ERROR "dpkg-shlibdeps is missing: install the packages listed under "
    "\"package\" in tools/packages")
endif()
