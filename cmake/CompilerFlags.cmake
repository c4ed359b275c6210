# Flags that every target of ours is built with.

add_library(lumenark_flags INTERFACE)
target_compile_options(lumenark_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wold-style-cast
  # A precompiled header is only taken when this matches, and ccache needs it to cache its users.
  -fpch-preprocess
  $<$<BOOL:${LUMENARK_WERROR}>:-Werror>)
target_compile_definitions(lumenark_flags INTERFACE
  QT_NO_CAST_TO_ASCII
  QT_NO_FOREACH
  QT_DISABLE_DEPRECATED_BEFORE=0x060400)
target_include_directories(lumenark_flags INTERFACE ${CMAKE_SOURCE_DIR}/src)

# Set for the whole build, not per target: one precompiled header serves many targets only when
# they are all compiled alike.
if(LUMENARK_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined
                      -fno-omit-frame-pointer -O1)
  add_link_options(-fsanitize=address,undefined)
endif()

find_package(PkgConfig REQUIRED)
pkg_check_modules(SQLCIPHER REQUIRED IMPORTED_TARGET sqlcipher>=3.4)
# The package's own flags leave this out; without it the header hides the password functions.
target_compile_definitions(PkgConfig::SQLCIPHER INTERFACE SQLITE_HAS_CODEC)

# The reader of albums in the former file format. Its header is C, and warns by our standards.
pkg_check_modules(LIBMDB REQUIRED IMPORTED_TARGET libmdb)

# The reader of what picture files say.
pkg_check_modules(EXIV2 REQUIRED IMPORTED_TARGET exiv2>=0.27)

# What adds pictures, outline and links to a book, and reads it again.
pkg_check_modules(QPDF REQUIRED IMPORTED_TARGET libqpdf>=11)
# Its header asks which of its own pointers we use: none.
target_compile_definitions(PkgConfig::QPDF INTERFACE POINTERHOLDER_TRANSITION=4)

# Where a deflated profile in a PNG file says how long it is.
find_package(ZLIB REQUIRED)
