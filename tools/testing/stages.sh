# shellcheck shell=sh
# Read by the scripts that check the game, in the checkout's folder.
started=$(date +%s)
mkdir -p build

# stage NAME COMMAND...: one line a stage, and what the command printed where it fails.
stage() {
  name=$1
  shift
  log="build/$(echo "$name" | tr ' ' '-').log"
  begun=$(date +%s)
  ("$@") >"$log" 2>&1 || {
    tail -n 200 "$log"
    echo "check: FAILED: $name (all of it: $log)" >&2
    exit 1
  }
  printf '%-28s ok  %4d s\n' "$name" $(($(date +%s) - begun))
}

all_passed() { printf 'check: all passed in %d s\n' $(($(date +%s) - started)); }
