# The scene's font, carried along so that scenes look alike everywhere. Where the files are of another version than
# 2.1.5, pictures differ a little from those of other builds, and the tests that compare them fail.
find_path(ZENTRIK_FONTS LiberationSans-Regular.ttf PATHS /usr/share/fonts NO_DEFAULT_PATH
  PATH_SUFFIXES truetype/liberation2 truetype/liberation liberation liberation-sans-fonts liberation-sans
  DOC "The folder of Liberation Sans")
if(NOT EXISTS ${ZENTRIK_FONTS}/LiberationSans-Bold.ttf)
  message(FATAL_ERROR "Liberation Sans is missing, with which scenes are lettered. "
    "Install Debian's fonts-liberation2, or name the folder of its files by -DZENTRIK_FONTS=...")
endif()

# What letters a scene needs them.
function(add_scene_fonts target)
  qt_add_resources(${target} ${target}_fonts PREFIX "/fonts" BASE ${ZENTRIK_FONTS} OPTIONS -no-compress
    FILES ${ZENTRIK_FONTS}/LiberationSans-Regular.ttf ${ZENTRIK_FONTS}/LiberationSans-Bold.ttf)
endfunction()
