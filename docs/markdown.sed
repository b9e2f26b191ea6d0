# What Doxygen reads in place of a page of Markdown: what the source tree holds is no page, and of a link to it the words
# alone stay; a page that stands elsewhere is linked as a whole.
s/\[([^]]+)\]\((bench|cmake|dev|docs|examples|fuzz|orbchart|orbml|packaging|quvaiocv|tests)(\/[^)]*)?\)/\1/g
s/(\]\([A-Za-z_]+\.md)#[^)]*\)/\1)/g
