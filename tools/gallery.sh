#!/bin/sh
# The gallery held against its reference, tests/gallery/reference-LANGUAGE.txt:
#
#   tools/gallery.sh check BUILD_DIR    (make gallery-check, and make test)
#   tools/gallery.sh accept BUILD_DIR   (make gallery-accept)
#
# Both render the simulator's gallery once in each language into
# BUILD_DIR/gallery/LANGUAGE/: English, and the language of each
# translations/carcontrol_LOCALE.ts. check compares the digest of every
# picture's pixels with the reference's line for it. When pictures differ it
# fails naming them, and for pictures a person can look at it renders the
# reference's own gallery from the commit that the reference's header names:
# that commit's tree is taken with git archive into BUILD_DIR/gallery-ref/,
# built there once and kept (ccache makes it quick). The differing pictures
# go side by side into BUILD_DIR/gallery-diff/, with an index.html. accept
# writes the references anew from the pictures just rendered.
#
# JOBS (default: the number of processors) bounds the reference's build.
set -eu

usage() {
    echo "usage: tools/gallery.sh check|accept BUILD_DIR" >&2
    exit 2
}
[ $# -eq 2 ] || usage
mode=$1
case $mode in check|accept) ;; *) usage ;; esac
root=$(cd "$(dirname "$0")/.." && pwd)
build=$(cd "$2" && pwd)
jobs=${JOBS:-$(nproc)}
references=$root/tests/gallery
checker=$build/tools/gallerycheck/gallerycheck
reference_tree=$build/gallery-ref
diff_dir=$build/gallery-diff

# The simulator finds the plug-in, the artwork and the catalogue of its own
# build unless the environment names others: it mustn't here, where two
# builds render.
unset CARCONTROL_PLUGIN_DIR CARCONTROL_RESOURCE_ROOT CARCONTROL_CATALOGUE_FILE CARCONTROL_STORAGE_DIR
export QT_QPA_PLATFORM=offscreen
# A machine without a runtime directory: a private one keeps Qt from warning.
if [ -z "${XDG_RUNTIME_DIR:-}" ]; then
    XDG_RUNTIME_DIR=$(mktemp -d)
    export XDG_RUNTIME_DIR
    trap 'rm -rf "$XDG_RUNTIME_DIR"' EXIT
fi

languages() {
    echo en
    for ts in "$root"/translations/carcontrol_*.ts; do
        [ -e "$ts" ] || continue
        name=${ts##*/carcontrol_}
        echo "${name%.ts}"
    done
}
LANGUAGES=$(languages | tr '\n' ' ' | sed 's/ $//')

# render SIMULATOR FOLDER [again]: every language's gallery into
# FOLDER/LANGUAGE/, the languages side by side. A language whose folder
# holds an index.html is rendered already (the gallery writes it last),
# unless "again" is given.
render() {
    simulator=$1
    folder=$2
    again=${3:-}
    pids=""
    for language in $LANGUAGES; do
        out=$folder/$language
        if [ -z "$again" ] && [ -f "$out/index.html" ]; then
            continue
        fi
        rm -rf "$out"
        mkdir -p "$folder"
        "$simulator" --gallery "$out" --language "$language" >"$folder/$language.log" 2>&1 &
        pids="$pids $!:$language"
    done
    failed=0
    for entry in $pids; do
        if ! wait "${entry%%:*}"; then
            echo "gallery: the gallery in ${entry#*:} failed:" >&2
            sed 's/^/  /' "$folder/${entry#*:}.log" >&2
            failed=1
        fi
    done
    return $failed
}

# The commit a reference names in its header, or nothing.
commit_of() {
    sed -n 's/^# commit \([0-9a-f]*\)$/\1/p' "$1" 2>/dev/null | head -n 1
}

# reference_pictures COMMIT: the commit's gallery in every language under
# $reference_tree/renders/COMMIT/, built from its own tree. On failure,
# $reason says why there are none.
reference_pictures() {
    commit=$1
    if [ -z "$commit" ]; then
        reason="the reference's header names no commit"
        return 1
    fi
    if ! command -v git >/dev/null 2>&1; then
        reason="git isn't installed, so the reference's commit $commit can't be taken"
        return 1
    fi
    if ! git -C "$root" rev-parse --git-dir >/dev/null 2>&1; then
        reason="$root isn't a git clone, so the reference's commit $commit can't be taken"
        return 1
    fi
    if ! git -C "$root" cat-file -e "$commit^{commit}" 2>/dev/null; then
        if [ "$(git -C "$root" rev-parse --is-shallow-repository 2>/dev/null)" = true ]; then
            reason="the reference's commit $commit isn't in this shallow clone (git fetch --unshallow brings it)"
        else
            reason="the reference's commit $commit isn't in this clone"
        fi
        return 1
    fi
    renders=$reference_tree/renders/$commit
    complete=1
    for language in $LANGUAGES; do
        [ -f "$renders/$language/index.html" ] || complete=0
    done
    [ $complete -eq 1 ] && return 0

    source=$reference_tree/source
    log=$reference_tree/build.log
    if [ "$(cat "$reference_tree/source.commit" 2>/dev/null)" != "$commit" ]; then
        echo "gallery check: taking the reference's commit $commit into $source"
        rm -rf "$source" "$reference_tree/source.commit"
        mkdir -p "$source"
        if ! git -C "$root" archive --format=tar -o "$reference_tree/source.tar" "$commit" \
                || ! tar -x -C "$source" -f "$reference_tree/source.tar"; then
            reason="the reference's commit $commit can't be taken out of git"
            return 1
        fi
        rm -f "$reference_tree/source.tar"
        echo "$commit" >"$reference_tree/source.commit"
    fi
    echo "gallery check: building it in $reference_tree/build (log: $log)"
    # The simulator and what its gallery needs; the whole tree when the
    # commit names its targets otherwise.
    if ! { cmake -S "$source" -B "$reference_tree/build" \
            && { cmake --build "$reference_tree/build" -j "$jobs" \
                    --target headunit-sim carcontrol_translations \
                || cmake --build "$reference_tree/build" -j "$jobs"; }; } >"$log" 2>&1; then
        reason="the reference's commit $commit doesn't build here (see $log)"
        return 1
    fi
    echo "gallery check: rendering its gallery into $renders"
    if ! render "$reference_tree/build/simulator/headunit-sim" "$renders"; then
        reason="the reference's commit $commit doesn't render its gallery here"
        return 1
    fi
}

mkdir -p "$build/gallery"
render "$build/simulator/headunit-sim" "$build/gallery" again

if [ "$mode" = accept ]; then
    commit=$(git -C "$root" rev-parse HEAD 2>/dev/null || true)
    mkdir -p "$references"
    for language in $LANGUAGES; do
        "$checker" digests --language "$language" ${commit:+--commit "$commit"} "$build/gallery/$language" \
            >"$references/reference-$language.txt.new"
        mv "$references/reference-$language.txt.new" "$references/reference-$language.txt"
    done
    # References of languages that have gone.
    for file in "$references"/reference-*.txt; do
        language=${file##*/reference-}
        language=${language%.txt}
        case " $LANGUAGES " in *" $language "*) ;; *) rm -f "$file"; echo "gallery accept: removed $file" ;; esac
    done
    echo "gallery accept: wrote the references of $LANGUAGES into $references, made at ${commit:-no commit}"
    if [ -n "$commit" ] && [ -n "$(git -C "$root" status --porcelain -- . ':!tests/gallery')" ]; then
        echo "gallery accept: the working tree has changes that $commit hasn't: the side-by-side pictures" \
            "of a later check would show that commit's screens; commit the change first and accept again" >&2
    fi
    exit 0
fi

rm -rf "$diff_dir"
status=0
"$checker" compare --references "$references" --gallery "$build/gallery" $LANGUAGES || status=$?
[ $status -eq 0 ] && exit 0
if [ $status -ne 1 ]; then
    echo "gallery check: FAILED: a reference or a gallery can't be read (above)" >&2
    exit 1
fi

reason=""
ok=1
commits=$(for language in $LANGUAGES; do commit_of "$references/reference-$language.txt"; done | sort -u)
[ -n "$commits" ] || { ok=0; reason="the references' headers name no commit"; }
for commit in $commits; do
    reference_pictures "$commit" || { ok=0; break; }
done
if [ $ok -eq 1 ]; then
    "$checker" compare --references "$references" --gallery "$build/gallery" \
        --renders "$reference_tree/renders" --diff "$diff_dir" $LANGUAGES || true
else
    "$checker" compare --references "$references" --gallery "$build/gallery" \
        --no-renders "$reason" --diff "$diff_dir" $LANGUAGES || true
    echo "gallery check: no reference pictures beside the new ones: $reason" >&2
fi
echo "gallery check: FAILED: the pictures named above differ from the reference; look at" \
    "$diff_dir/index.html, and if the change is meant, make gallery-accept" >&2
exit 1
