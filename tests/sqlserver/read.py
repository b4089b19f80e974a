"""Reads statements of SQL Server with two parsers and looks for what a parser does not see.

    read.py STATEMENTS KNOWN

STATEMENTS holds a JSON string on each line. Statements that differ in their values alone are one shape and read once;
KNOWN keeps the answers from run to run. Exit status 1 where a parser refuses what is not explained below, or a trap is
found.
"""
import json
import logging
import multiprocessing
import os
import re
import sys

# What a parser refuses although the language has it: the parser, the statement, why it is right.
EXPLAINED = [
    ("sqlfluff", r"^SET (LOCK_TIMEOUT \d+|DATEFORMAT ymd)$", "SET options that this parser has no rule for"),
    ("sqlglot", r"^SET [A-Z_ ]+( \w+)?$", "it reads no SET and hands it on as text"),
    ("sqlglot", r"^CREATE (UNIQUE )?INDEX ", "it reads an index over one column or without a condition only"),
    ("sqlglot", r"^CREATE TABLE .* COLLATE ", "it knows no COLLATE behind the type of a column"),
    ("sqlglot", r"^ALTER TABLE .* ADD ", "it hands ALTER TABLE on as text"),
]

# Functions of the other engines that a parser takes for one of the server's.
FUNCTIONS = {"COUNT", "MAX", "MIN", "SUM", "UPPER", "LOWER", "LEFT", "CONCAT", "COALESCE", "IN", "VALUES", "NVARCHAR",
             "DATETIME2", "NUMERIC", "KEY", "UNIQUE", "AND", "OR", "WHERE", "EXISTS", "NOT", "AS", "BY", "ON", "FROM"}

LITERAL = re.compile(r"N?'(?:[^']|'')*'")


def shape(statement):
    """The statement without its values."""
    text = LITERAL.sub(lambda found: "N'x'" if found.group().startswith("N") else "'x'", statement)
    text = re.sub(r"(?<![\w.])-?\d+(\.\d+)?", "1", text)
    # A list of rows or values of any length is one shape.
    return re.sub(r"\s+", " ", text).strip()


def traps(statement):
    """What reads well and would not do there what it does on the other engines."""
    text = LITERAL.sub("''", statement)
    found = []
    if "||" in text:
        found.append("|| joins no texts")
    if re.search(r"\bLIMIT\b|\bILIKE\b|\bNULLS (FIRST|LAST)\b", text, re.I):
        found.append("a word of another engine")
    if re.search(r"(?<!_SC) (NOT )?LIKE\b", text, re.I):
        found.append("LIKE without a collation")
    for subselect in re.findall(r"\(\s*SELECT\b[^()]*", text, re.I):
        if re.search(r"\bORDER BY\b", subselect, re.I) and not re.search(r"\bTOP\b", subselect, re.I):
            found.append("ORDER BY in a subselect without TOP")
    order = re.search(r"\bORDER BY\b(.*)$", text, re.I)
    if order:
        items = [re.sub(r"\s+(ASC|DESC)\s*$", "", item.strip(), flags=re.I).upper() for item in order.group(1).split(",")]
        if len(items) != len(set(items)):
            found.append("a column twice in ORDER BY")
    for function in re.findall(r"\b([A-Za-z_]\w*)\s*\(", text):
        behind_table = re.search(r"(INTO|INSERT|TABLE|ON|REFERENCES)\s+[\w.]*\b" + function + r"\s*\(", text, re.I)
        if function.upper() not in FUNCTIONS and not behind_table:
            found.append("the function " + function)
    for literal in LITERAL.findall(statement):
        if not literal.startswith("N") and not literal.isascii():
            found.append("a letter beyond ASCII in a literal without N")
    return found


def read_by_sqlglot(statement):
    import sqlglot
    try:
        trees = sqlglot.parse(statement, read="tsql", error_level=sqlglot.ErrorLevel.RAISE)
    except Exception as refusal:  # the parser's own and its accidents
        return str(refusal).splitlines()[0]
    if len(trees) != 1:
        return "read as %d statements" % len(trees)
    return "handed on as text" if type(trees[0]).__name__ == "Command" else ""


def read_by_sqlfluff(statement):
    from sqlfluff.core import Linter
    global linter
    if "linter" not in globals():
        logging.disable(logging.CRITICAL)
        linter = Linter(dialect="tsql")
    parsed = linter.parse_string(statement)
    if parsed.violations:
        return str(parsed.violations[0].desc())
    return "" if parsed.tree is not None else "nothing read"


def read(item):
    name, statement = item
    return name, {"sqlglot": read_by_sqlglot(statement), "sqlfluff": read_by_sqlfluff(statement)}


def main():
    statements, kept = sys.argv[1:3]
    with open(statements, encoding="utf-8") as lines:
        texts = [json.loads(line) for line in lines]
    shapes = {}
    for text in texts:
        shapes.setdefault(shape(text), text)
    known = {}
    if os.path.exists(kept):
        with open(kept, encoding="utf-8") as file:
            known = json.load(file)
    new = [item for item in shapes.items() if item[0] not in known]
    with multiprocessing.Pool() as pool:
        known.update(pool.imap_unordered(read, new, chunksize=4))
    with open(kept, "w", encoding="utf-8") as file:
        json.dump({name: known[name] for name in shapes}, file)

    failed = 0
    refused = {"sqlglot": 0, "sqlfluff": 0}
    read_by_none = 0
    for name, statement in sorted(shapes.items()):
        answers = known[name]
        for parser, why in answers.items():
            if not why:
                continue
            refused[parser] += 1
            if not any(parser == one and re.search(pattern, name) for one, pattern, _ in EXPLAINED):
                failed += 1
                print(f"{parser}: {why}\n  {statement[:600]}")
        read_by_none += all(answers.values())
    found = {}
    for text in texts:
        for trap in traps(text):
            found.setdefault(trap, text)
    for trap, text in found.items():
        print(f"trap: {trap}\n  {text[:600]}")
    print(f"{len(texts)} statements in {len(shapes)} shapes; refused and explained: "
          f"{refused['sqlglot']} by sqlglot, {refused['sqlfluff']} by sqlfluff, {read_by_none} by both; "
          f"not explained: {failed}; traps: {len(found)}")
    sys.exit(1 if failed or found or len(shapes) < 200 else 0)


if __name__ == "__main__":
    main()
