# The font files that the program ships and that its pictures are drawn with: Debian's fonts-roboto-unhinted.
find_path(QUORIX_FONT_DIR RobotoTTF/Roboto-Regular.ttf
  PATHS /usr/share/fonts/truetype/roboto/unhinted /usr/local/share/fonts/truetype/roboto/unhinted
  DOC "Folder with RobotoTTF/ and RobotoCondensed-*.ttf")
set(QUORIX_FONT_FILES RobotoTTF/Roboto-Regular.ttf RobotoTTF/Roboto-Medium.ttf RobotoTTF/Roboto-Bold.ttf
  RobotoCondensed-Regular.ttf RobotoCondensed-Medium.ttf RobotoCondensed-Bold.ttf)
