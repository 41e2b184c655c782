#!/usr/bin/env python3
"""Simulates a flat gate-level netlist cycle by cycle to measure the
switching activity its nets really have, to check the propagated figures of
report_switching_activity against.

Zero delay: at each rising clock edge the registers take their next state
and every other input flips with chance 2^-K; then the logic settles. A
net's rate is how often its settled value changes, per ns; its probability
the share of cycles it is at 1. LANES independent copies run at once, one
bit each of a Python integer.

    simulate_activity.py LIBERTY NETLIST [--clock clk] [--period 5]
        [--flip-bits 3] [--lanes 1024] [--warmup 300] [--cycles 3000]

LIBERTY may be gzipped. Only cells whose outputs have a `function`, and
`ff` groups clocked on one pin, are understood; a netlist of one module
with named port connections. Prints "net rate probability" a line, in the
form of report_switching_activity, clock nets left out.
"""
import argparse
import gzip
import random
import re
import sys


def read_text(path):
    opener = gzip.open if path.endswith(".gz") else open
    with opener(path, "rt") as f:
        return f.read()


def block_end(text, open_at):
    depth = 0
    for i in range(open_at, len(text)):
        if text[i] == "{":
            depth += 1
        elif text[i] == "}":
            depth -= 1
            if depth == 0:
                return i
    return len(text)


def liberty_cells(text, wanted):
    """name -> (output pin -> function, ff (state, state_n, next, clock) or None)"""
    cells = {}
    for name in wanted:
        m = re.search(r'\bcell\s*\(\s*"?%s"?\s*\)\s*\{' % re.escape(name), text)
        if not m:
            continue
        body = text[m.end() - 1:block_end(text, m.end() - 1)]
        outputs = {}
        for pm in re.finditer(r'\bpin\s*\(\s*"?(\w+)"?\s*\)\s*\{', body):
            pin = body[pm.end() - 1:block_end(body, pm.end() - 1)]
            direction = re.search(r'\bdirection\s*:\s*"?(\w+)', pin)
            function = re.search(r'(?<![\w])function\s*:\s*"([^"]*)"', pin)
            if direction and direction.group(1) == "output" and function:
                outputs[pm.group(1)] = function.group(1)
        ff = None
        fm = re.search(r'\bff\s*\(\s*"?(\w+)"?\s*,\s*"?(\w+)"?\s*\)\s*\{([^}]*)\}', body)
        if fm:
            nxt = re.search(r'next_state\s*:\s*"([^"]*)"', fm.group(3))
            clk = re.search(r'clocked_on\s*:\s*"([^"]*)"', fm.group(3))
            if nxt and clk:
                ff = (fm.group(1), fm.group(2), nxt.group(1), clk.group(1).strip())
        cells[name] = (outputs, ff)
    return cells


def to_python(function):
    """A Liberty function as a Python expression over lane masks (M: all ones)."""
    tokens = re.findall(r"[A-Za-z_]\w*|[01]|[!'&*|+^()]", function)
    pos = [0]

    def peek():
        return tokens[pos[0]] if pos[0] < len(tokens) else None

    def take():
        pos[0] += 1
        return tokens[pos[0] - 1]

    def primary():
        t = take()
        if t == "!":
            e = "(M^%s)" % primary()
        elif t == "(":
            e = orr()
            take()
        elif t == "0":
            e = "0"
        elif t == "1":
            e = "M"
        else:
            e = "v_" + t
        while peek() == "'":
            take()
            e = "(M^%s)" % e
        return e

    def andd():
        e = primary()
        while peek() in ("&", "*") or (peek() and peek() not in ("|", "+", "^", ")")):
            if peek() in ("&", "*"):
                take()
            e = "(%s&%s)" % (e, primary())
        return e

    def xor():
        e = andd()
        while peek() == "^":
            take()
            e = "(%s^%s)" % (e, andd())
        return e

    def orr():
        e = xor()
        while peek() in ("|", "+"):
            take()
            e = "(%s|%s)" % (e, xor())
        return e

    return orr(), sorted(set(t for t in tokens if re.match(r"[A-Za-z_]", t)))


def main():
    ap = argparse.ArgumentParser()
    ap.add_argument("liberty")
    ap.add_argument("netlist")
    ap.add_argument("--clock", default="clk")
    ap.add_argument("--period", type=float, default=5.0)
    ap.add_argument("--flip-bits", type=int, default=3)
    ap.add_argument("--lanes", type=int, default=1024)
    ap.add_argument("--warmup", type=int, default=300)
    ap.add_argument("--cycles", type=int, default=3000)
    ap.add_argument("--seed", type=int, default=1)
    args = ap.parse_args()

    mask = (1 << args.lanes) - 1
    verilog = read_text(args.netlist)
    name = r"(\\\S+\s|[A-Za-z_][\w$]*(?:\s*\[\d+\])?)"

    def norm(net):
        return re.sub(r"\s+", "", net.strip().lstrip("\\"))

    inputs = []
    for m in re.finditer(r"\binput\s+(?:\[(\d+):(\d+)\]\s*)?([^;]+);", verilog):
        for port in m.group(3).split(","):
            port = norm(port)
            if m.group(1) is None:
                inputs.append(port)
            else:
                hi, lo = int(m.group(1)), int(m.group(2))
                for i in range(min(hi, lo), max(hi, lo) + 1):
                    inputs.append("%s[%d]" % (port, i))
    instances = []
    for m in re.finditer(r"\n\s*([A-Za-z_]\w*)\s+(\\\S+|[A-Za-z_][\w$]*)\s*\((\s*\..*?)\);", verilog, re.S):
        conns = {p: norm(n) for p, n in re.findall(r"\.(\w+)\s*\(\s*" + name + r"?\s*\)", m.group(3))}
        instances.append((m.group(1), conns))
    cells = liberty_cells(read_text(args.liberty), set(i[0] for i in instances))

    def compile_function(function):
        expr, ports = to_python(function)
        return eval("lambda %s: %s" % (",".join(["M"] + ["v_" + p for p in ports]), expr)), ports

    flops, gates = [], []
    for cell, conns in instances:
        if cell not in cells:
            continue
        outputs, ff = cells[cell]
        if ff:
            state, state_n, nxt, _ = ff
            fn, ports = compile_function(nxt)
            flop = {"next": fn, "next_in": [conns.get(p, "") for p in ports],
                    "state": state, "state_n": state_n, "outputs": []}
            for pin, function in outputs.items():
                if conns.get(pin):
                    # Q = IQ, QN = IQN: functions of the state.
                    fn, ports = compile_function(function)
                    flop["outputs"].append((fn, ports, conns[pin]))
            flops.append(flop)
            continue
        for pin, function in outputs.items():
            if conns.get(pin):
                fn, ports = compile_function(function)
                gates.append((fn, [conns.get(p, "") for p in ports], conns[pin]))

    clocks = {args.clock}
    grew = True
    while grew:
        grew = False
        for fn, ins, out in gates:
            if ins and all(i in clocks for i in ins) and out not in clocks:
                clocks.add(out)
                grew = True
    gates = [g for g in gates if g[2] not in clocks]
    driver = {g[2]: g for g in gates}
    order, seen = [], set()

    def visit(net):
        stack = [(net, False)]
        while stack:
            n, done = stack.pop()
            if done:
                order.append(driver[n])
                continue
            if n in seen or n not in driver:
                continue
            seen.add(n)
            stack.append((n, True))
            for i in driver[n][1]:
                stack.append((i, False))

    for g in gates:
        visit(g[2])

    rnd = random.Random(args.seed)
    value = {"": 0}
    for n in inputs:
        value[n] = rnd.getrandbits(args.lanes)
    states = [rnd.getrandbits(args.lanes) for _ in flops]

    def flop_outputs():
        for flop, state in zip(flops, states):
            known = {flop["state"]: state, flop["state_n"]: mask ^ state}
            for fn, ports, out in flop["outputs"]:
                value[out] = fn(mask, *[known.get(p, value.get(p, 0)) for p in ports])

    def settle():
        for fn, ins, out in order:
            value[out] = fn(mask, *[value.get(i, 0) for i in ins])

    flop_outputs()
    settle()
    data_inputs = [n for n in inputs if n not in clocks]
    nets = [g[2] for g in order] + [o[2] for f in flops for o in f["outputs"]] + data_inputs
    toggles = dict.fromkeys(nets, 0)
    ones = dict.fromkeys(nets, 0)
    for cycle in range(args.warmup + args.cycles):
        before = {n: value.get(n, 0) for n in nets}
        states = [f["next"](mask, *[value.get(a, 0) for a in f["next_in"]]) for f in flops]
        for n in data_inputs:
            flip = mask
            for _ in range(args.flip_bits):
                flip &= rnd.getrandbits(args.lanes)
            value[n] ^= flip
        flop_outputs()
        settle()
        if cycle >= args.warmup:
            for n in nets:
                toggles[n] += bin(value[n] ^ before[n]).count("1")
                ones[n] += bin(value[n]).count("1")
    samples = args.lanes * args.cycles
    for n in nets:
        print("%-30s %11.5f %14.4f  sim" % (n, toggles[n] / samples / args.period, ones[n] / samples))
    return 0


if __name__ == "__main__":
    sys.exit(main())
