# Comments as the headers have them to those that Doxygen reads.

# The first comment of a file is about the file, and about its class where that has no comment of its own.
NR == 1 { is_first = 1; print "/// \\file" }
is_first && /^\/\// { about = about "/" $0 "\n"; print "/" $0; next }
{ is_first = 0 }

# Headings between functions are no one's, and what all of them share belongs to the first only by its place.
/^ *\/\/ ----/ || /= (default|delete);$/ { was_comment = 0; print ""; next }

/^(struct|class) [^;]*\{/ && !was_comment { printf "%s", about }

# On a line of its own: about what follows. Behind a declaration: about that.
/^ *\/\// { sub(/\/\//, "///"); was_comment = 1; last = $0; print; next }
# A list of words has one comment for all.
/^inline const QString/ { if (!was_comment) print last; print; was_comment = 0; next }
{ was_comment = 0 }
/[;,{] +\/\/ / { sub(/ +\/\/ /, " ///< ") }
{ print }
