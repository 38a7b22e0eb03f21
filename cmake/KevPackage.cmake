# The Debian package: what cpack writes around the files that packaging/CMakeLists.txt installs.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME kev)
set(CPACK_PACKAGE_VENDOR "The Kev developers")
set(CPACK_PACKAGE_CONTACT "Kev developers <kev@example.org>")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION editors)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "designer of report templates")
set(CPACK_PACKAGE_DESCRIPTION "Kev draws the templates of invoices, labels, price lists and statistics that
other programs print. The page is laid out in bands for header, data and
footer; text, pictures, shapes, bar codes, QR codes and charts are placed
freely or on named columns. A template is a plain text file that a report
viewer fills with data.

The package also holds kevtool, which checks, renders and converts templates
on the command line, and ten example templates with their data.")
# What the programs are linked with is found out; the rest is used, not linked. The fonts have the widths of
# those that templates name; without another font the words of the window would be shown in one of theirs.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-liberation")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS
  "fonts-dejavu-core, qt6-image-formats-plugins, qt6-translations-l10n, qt6-wayland, shared-mime-info, desktop-file-utils, xdg-utils")
include(CPack)
