# What Doxygen reads in place of a header; no line moves. The comment at the head becomes the header's own, and where one
# comment stands over a group of operations, those behind the first point to it.
/^#pragma once/ {
  print "/// \\file"
  inside = 1
  next
}
!inside {
  sub(/^\/\//, "///")
  print
  next
}
/^ *$/ { first = "" }
/^ *\/\/\// {
  commented = 1
  print
  next
}
commented {
  first = ""
  if (match($0, /[~A-Za-z_0-9]+\(/) && !/[={] *$/)
    first = substr($0, RSTART, RLENGTH - 1)
  continued = !/[;}]$/
  commented = 0
  print
  next
}
continued {
  continued = !/[;}]$/
  print
  next
}
first != "" && /\(.*;$/ && !/~|= delete;/ && !index($0, first "(") { $0 = $0 " ///< See " first "()." }
{ print }
