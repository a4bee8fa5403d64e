# Assembles the program folder from bundle/: cmake -DSRC=<bundle> -DDEST=<folder> -P bundle.cmake
#
# The guide, the desktop entry and the icon are the program's own and follow the sources. The
# dictionaries are the user's once in the folder: LEX edits them, scripts/install-dictionaries.sh
# puts real ones in place of the samples, and a build must not put a sample back over either.
cmake_minimum_required(VERSION 3.21)
set(own aide.txt lex.desktop lex.svg)
file(MAKE_DIRECTORY ${DEST})
file(GLOB files ${SRC}/*)
foreach(f ${files})
  get_filename_component(name ${f} NAME)
  if(name IN_LIST own)
    file(COPY_FILE ${f} ${DEST}/${name} ONLY_IF_DIFFERENT)
  elseif(NOT EXISTS ${DEST}/${name})
    file(COPY_FILE ${f} ${DEST}/${name})
  endif()
endforeach()
