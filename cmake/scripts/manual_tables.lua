-- Keeps short cells of the manual's tables on one line. Japanese has no blanks to break at: without this a browser makes a column
-- of labels one character wide, and gives all the room to the column with the longest texts.
local LONGEST_LABEL = 28 -- in the first column, half-width characters
local LONGEST_OTHER = 18

-- Wide characters, as Japanese ones are, count for two.
local function width(cell)
  local count = 0
  for _, code in utf8.codes(pandoc.utils.stringify(pandoc.Div(cell.contents))) do
    count = count + (code >= 0x1100 and 2 or 1)
  end
  return count
end

local function mark(rows)
  for _, row in ipairs(rows) do
    for i, cell in ipairs(row.cells) do
      if width(cell) <= (i == 1 and LONGEST_LABEL or LONGEST_OTHER) then cell.classes:insert("short") end
    end
  end
end

function Table(element)
  mark(element.head.rows)
  for _, body in ipairs(element.bodies) do mark(body.body) end
  return element
end
