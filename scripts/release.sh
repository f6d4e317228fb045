# Makes the packages of a release. The same sources give the same bytes. Sourced, never run.

readonly PACKAGES="$BUILD/package"

# The time of the last commit stands for the time of the build.
release_time() { git -C "$ROOT" log -1 --format=%ct 2>/dev/null || printf '%s' "${SOURCE_DATE_EPOCH:-315532800}"; }

# package_name KIND: Trothline-3.1.0-KIND
package_name() { printf 'Trothline-%s-%s' "$(project_version)" "$1"; }

# make_packages FOLDER: the installer, the portable archive and their sums, from the programs in build/windows.
make_packages() {
  local folder="$1" content name
  content="$WORK/content/$(package_name portable)"
  rm -rf "$WORK/content" "$folder"
  mkdir -p "$content" "$folder"
  cp -R "$ROOT/program/." "$content/"
  cp "$BUILD/windows/Troth.exe" "$BUILD/windows/KestrelMoors.exe" "$content/"
  sed 's/$/\r/' "$ROOT/LICENSE" >"$content/LICENSE.TXT"
  chmod -R u=rwX,go=rX "$content"
  find "$WORK/content" -exec touch -h -d "@$(release_time)" {} +

  make_installer "$content" "$folder/$(package_name setup).exe"
  (cd "$WORK/content" && find . -type f -printf '%P\n' | sort | TZ=UTC zip -q -9 -X -@ "$folder/$(package_name portable).zip")
  (cd "$folder" && sha256sum ./*.exe ./*.zip | sed 's| \./| |' >SHA256SUMS)
}

# make_installer CONTENT OUTPUT.exe
make_installer() {
  local lists="$WORK/lists" path folder file macro
  mkdir -p "$lists"
  : >"$lists/install.nsh"
  : >"$lists/remove.nsh"
  while read -r path; do
    file="${path##*/}"
    folder="${path%"$file"}"
    folder="${folder%/}"
    folder="${folder:+\\${folder//\//\\}}"
    case "$path" in
      *.exe | LICENSE.TXT | guide/*) macro=ProgramFile ;;
      *) macro=UserFile ;;
    esac
    printf '!insertmacro %s "%s" "%s" "%s"\n' "$macro" "$folder" "$file" "$1/$path" >>"$lists/install.nsh"
    printf '!insertmacro Remove%s "%s" "%s"\n' "$macro" "$folder" "$file" >>"$lists/remove.nsh"
  done < <(cd "$1" && find . -type f -printf '%P\n' | sort)
  # Inner folders first.
  while read -r path; do
    printf '!insertmacro RemoveFolder "\\%s"\n' "${path//\//\\}" >>"$lists/remove.nsh"
  done < <(cd "$1" && find . -mindepth 1 -type d -printf '%P\n' | sort -r)
  # The folders that the program adds.
  sed -i '0,/RemoveFolder/s//RemoveFolder "\\wedscripts\\My Scripts"\n!insertmacro RemoveFolder "\\Screenshots"\n!insertmacro &/' \
    "$lists/remove.nsh"

  makensis -V2 -INPUTCHARSET UTF8 -DVERSION="$(project_version)" -DOUTPUT="$2" -DLISTS="$lists" -DSOURCES="$ROOT" \
    -DSIZE_KB="$(du -sk --apparent-size "$1" | cut -f1)" "$ROOT/packaging/Trothline.nsi" >"$WORK/makensis.log" 2>&1 ||
    { cat "$WORK/makensis.log" >&2 && fail "the installer cannot be built"; }
}
