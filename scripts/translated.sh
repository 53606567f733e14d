# What of the sources is translated, and how it is found. Source it, then call: update_strings FILE [OPTION...]

# The window's own texts. Those of the control, its pages and dialogs among them, stay as they are.
translated=(
  src/host src/automation src/qt/TesselWidget.cpp src/qt/base src/qt/editor src/qt/services src/qt/views
)

# The language is the last part of the FILE's name.
update_strings() {
  local file=$1 language=${1##*_}
  shift
  "${LUPDATE:-/usr/lib/qt6/bin/lupdate}" -silent -no-obsolete -locations none -source-language en -target-language "${language%.ts}" \
    -tr-function-alias QT_TR_NOOP+=TR -I src "$@" "${translated[@]}" -ts "$file"
}
