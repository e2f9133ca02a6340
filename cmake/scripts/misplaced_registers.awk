# From objdump's dump of .xdata: the registers that the unwind data of a function place outside of its frame. One line for each.
# The steps of a function's beginning stand in the dump from the last to the first.

function number(text,    value, i) {
  value = 0
  for (i = 3; i <= length(text); i++) value = value * 16 + index("0123456789abcdef", tolower(substr(text, i, 1))) - 1
  return value
}

function judge(    i, words, depth, base, size) {
  depth = 0
  base = -1
  for (i = count; i >= 1; i--) {
    split(steps[i], words, " ")
    if (words[2] == "push") depth += 8
    if (words[2] == "alloc") depth += number(words[9])
    if (words[2] == "FPReg:") base = depth
  }
  if (base < 0) base = depth
  for (i = 1; i <= count; i++) {
    split(steps[i], words, " ")
    if (words[2] != "save") continue
    size = words[3] ~ /^xmm/ ? 16 : 8
    if (number(words[7]) + size > base) print "  " place ": " words[3] " at " words[7] " of a frame of " base " bytes"
  }
  count = 0
}

/\(rva: / { judge(); place = $(NF - 2) " - " $NF }
/^[[:space:]]*pc\+0x/ { steps[++count] = $0 }
END { judge() }
