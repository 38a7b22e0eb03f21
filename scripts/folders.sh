# The folders that the designer expects, for the scripts that start it; to be sourced by bash.

# A folder of the XDG rules: absolute, or else the default below the home folder.
xdg_folder() {
  case ${!1:-} in
    /*) printf '%s\n' "${!1}" ;;
    *) printf '%s\n' ~/"$2" ;;
  esac
}

# Sets TEMP and appdata where they are not set already, and makes what the designer looks for in them. What
# can't be made is no reason not to start: the designer tells what it lacks.
make_folders() {
  # In a folder that all users share, someone else may have made Kev; working files must not go there.
  if [ -z "${TEMP:-}" ] || [ ! -O "$TEMP/Kev" ]; then
    TEMP=$(xdg_folder XDG_CACHE_HOME .cache)
  fi
  appdata=${appdata:-${APPDATA:-$(xdg_folder XDG_DATA_HOME .local/share)}}
  export TEMP appdata
  mkdir -p "$TEMP/Kev/Cache" "$TEMP/Kev/Temp" "$appdata/Kev/temp" || true
}

# Whether the arguments only ask for a text, which needs no window.
is_question() { [ $# -eq 1 ] && { [ "$1" = --help ] || [ "$1" = --version ]; }; }

# Whether there is a screen to show a window on, or something that stands for one.
has_display() { [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}${QT_QPA_PLATFORM:-}" ]; }
