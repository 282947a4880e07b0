# Pictures: the decoders every build has (BMP, ICO, the seam's drawing of
# decoded pixels), then the platform's loading: OleLoadPicture on Windows,
# libjpeg, giflib and libpng elsewhere. Included at the end of src/CMakeLists.txt.
file(GLOB VORLEX_PICTURE_SOURCES CONFIGURE_DEPENDS ${CMAKE_CURRENT_LIST_DIR}/*.cpp)
if(WIN32)
  file(GLOB VORLEX_PICTURE_PLATFORM CONFIGURE_DEPENDS ${CMAKE_CURRENT_LIST_DIR}/win32/*.cpp)
else()
  file(GLOB VORLEX_PICTURE_PLATFORM CONFIGURE_DEPENDS ${CMAKE_CURRENT_LIST_DIR}/soft/*.cpp)
endif()
target_sources(vorlex PRIVATE ${VORLEX_PICTURE_SOURCES} ${VORLEX_PICTURE_PLATFORM})

if(WIN32)
  target_link_libraries(vorlex PUBLIC oleaut32 ole32 uuid windowscodecs)
else()
  find_package(PNG REQUIRED)
  find_package(JPEG REQUIRED)
  find_package(GIF REQUIRED)
  target_link_libraries(vorlex PRIVATE PNG::PNG JPEG::JPEG GIF::GIF)
endif()
