# Sourced by run and test: installs Debian packages that are missing, and only those.

# What the build for Windows and its tests take; ./test leaves them out where one of these is missing.
for_windows=(g++-mingw-w64-x86-64-posix googletest wine64 xvfb xauth zip unzip)

# is_installed PACKAGE
is_installed() {
  [ "$(dpkg-query -W -f '${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

# install_missing PACKAGE...
install_missing() {
  local package missing=()
  for package in "$@"; do
    if ! is_installed "$package"; then
      missing+=("$package")
    fi
  done
  if [ ${#missing[@]} -eq 0 ]; then
    return 0
  fi
  local as_root=()
  if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
      echo "These packages are missing: ${missing[*]}" >&2
      echo "Install them as root (apt-get install ${missing[*]}) and start again." >&2
      return 1
    fi
    as_root=(sudo)
  fi
  echo "Installing by apt: ${missing[*]}"
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update -qq
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends \
    "${missing[@]}" >/dev/null
}

# say TEXT: one line on what happens next.
say() {
  printf '\n== %s\n' "$*"
}
